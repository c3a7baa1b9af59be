// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"
#include "PropertyEditorDelegates.h"

class FLayoutRegistry;
class IPropertyHandle;
class IPropertyRowGenerator;
struct FPropertyRowGeneratorArgs;

/** Tells values of one type that are laid out in their own way from the others of the type. */
class IPropertyTypeIdentifier
{
public:
	virtual ~IPropertyTypeIdentifier() = default;

	/** Whether the layout registered with this identifier is meant for the value. */
	virtual bool IsPropertyTypeCustomized(const IPropertyHandle& PropertyHandle) const = 0;
};

/**
 * Who lays out the details of which class, and the values of which type. Names are reflected names, without prefix
 * letter. Registrations stay until the module is unloaded.
 */
class PROPERTYEDITOR_API FPropertyEditorModule : public IModuleInterface
{
public:
	FPropertyEditorModule();
	virtual ~FPropertyEditorModule();

	/** Lays out objects of the class and of those derived from it; takes the place of an earlier one of that name. */
	virtual void RegisterCustomClassLayout(FName ClassName, FOnGetDetailCustomizationInstance DetailLayoutDelegate);

	/**
	 * Lays out values of the structure. One without identifier takes the place of an earlier one without; those with
	 * identifiers are asked first, the last registered before the others.
	 */
	virtual void RegisterCustomPropertyTypeLayout(FName PropertyTypeName,
		FOnGetPropertyTypeCustomizationInstance PropertyTypeLayoutDelegate,
		TSharedPtr<IPropertyTypeIdentifier> Identifier = nullptr);

	/**
	 * Builds all rows anew, in every generator, as layouts have come or gone. May be called from a row's callback: what
	 * made the former rows lives on until the generator's next SetObjects or RefreshIfOutdated.
	 */
	void NotifyCustomizationModuleChanged();

	/** A details panel without its window. */
	virtual TSharedRef<IPropertyRowGenerator> CreatePropertyRowGenerator(const FPropertyRowGeneratorArgs& InArgs);

	/** The registered names, sorted. The real engine keeps these two to itself. */
	TArray<FName> GetCustomClassLayoutNames() const;
	TArray<FName> GetCustomPropertyTypeLayoutNames() const;

private:
	TSharedRef<FLayoutRegistry> Layouts;
};
