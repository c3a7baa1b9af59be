// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "DetailCategoryBuilder.h"
#include "UObject/Class.h"

class IPropertyHandle;

/** Lays out the details of the edited objects. */
class IDetailLayoutBuilder
{
public:
	virtual ~IDetailLayoutBuilder() = default;

	/**
	 * The category of that name, made if there is none. The first text that is not empty is shown in place of the name,
	 * and the last priority given counts.
	 */
	virtual IDetailCategoryBuilder& EditCategory(FName CategoryName,
		const FText& NewLocalizedDisplayName = FText::GetEmpty(),
		ECategoryPriority::Type CategoryType = ECategoryPriority::Default) = 0;
	/**
	 * The property at the path, which may lead into structures ("Owner.Member"). An invalid handle if there is none.
	 * @param ClassOutermost which class must have it; null for any.
	 */
	virtual TSharedRef<IPropertyHandle> GetProperty(
		const FName PropertyPath, const UClass* ClassOutermost = nullptr, FName InstanceName = NAME_None) = 0;
};
