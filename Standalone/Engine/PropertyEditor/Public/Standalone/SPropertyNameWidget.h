// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class IPropertyHandle;

/** Shows a property's name, and knows which property that is. */
class PROPERTYEDITOR_API SPropertyNameWidget : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SPropertyNameWidget) {}
	/** By default the property's display name. */
	SLATE_ARGUMENT(FText, Text)
	SLATE_ARGUMENT(TSharedPtr<const IPropertyHandle>, PropertyHandle)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	const TSharedPtr<const IPropertyHandle>& GetPropertyHandle() const { return PropertyHandle; }

private:
	TSharedPtr<const IPropertyHandle> PropertyHandle;
};
