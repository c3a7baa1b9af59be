// Copyright Corvane. MIT License.
#include "DetailRow.h"

#include "DetailLayout.h"
#include "EditorStyleSet.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	/** What was put in, null for nothing. */
	TSharedPtr<SWidget> GetContent(const FDetailWidgetDecl& Decl, FNodeWidgetLayoutData& OutLayout)
	{
		OutLayout.HorizontalAlignment = Decl.HAlignment;
		OutLayout.VerticalAlignment = Decl.VAlignment;
		OutLayout.MinWidth = Decl.MinWidth;
		OutLayout.MaxWidth = Decl.MaxWidth;
		return Decl.GetWidget() == SNullWidget::NullWidget ? TSharedPtr<SWidget>() : Decl.GetWidget();
	}
}

FNodeWidgets FDetailRow::CreateNodeWidgets() const
{
	const IPropertyHandle* Handle = ShownProperty.Get();
	FNodeWidgets Widgets;
	Widgets.NameWidget = GetContent(Row.NameWidget, Widgets.NameWidgetLayoutData);
	Widgets.ValueWidget = GetContent(Row.ValueWidget, Widgets.ValueWidgetLayoutData);
	if (Handle && !Widgets.NameWidget.IsValid())
	{
		Widgets.NameWidget = Handle->CreatePropertyNameWidget();
	}
	if (Handle && !Widgets.ValueWidget.IsValid())
	{
		Widgets.ValueWidget = Handle->CreatePropertyValueWidget();
	}
	return Widgets;
}

void FDetailRow::GetChildren(TArray<TSharedRef<IDetailTreeNode>>& OutChildren)
{
	for (const TSharedRef<FDetailRow>& Child : Children)
	{
		if (Child->IsListed())
		{
			OutChildren.Add(Child);
		}
	}
}

void FDetailRow::GetFilterStrings(TArray<FString>& OutFilterStrings) const
{
	if (ShownProperty.IsValid())
	{
		OutFilterStrings.Add(ShownProperty->GetPropertyDisplayName().ToString());
	}
	if (!ShownProperty.IsValid() || !Row.FilterTextString.IsEmpty())
	{
		OutFilterStrings.Add(Row.FilterTextString.ToString());
	}
}

IDetailPropertyRow& FDetailRow::AddProperty(TSharedRef<IPropertyHandle> PropertyHandle)
{
	FDetailRow& Added = AddPropertyRow(StaticCastSharedRef<FPropertyNode>(PropertyHandle), bAdvanced);
	// A layout that adds the very value that it lays out would be asked without end.
	Added.bByDefault = Added.ShownProperty == ShownProperty;
	return Added;
}

FDetailWidgetRow& FDetailRow::AddCustomRow(const FText& SearchString)
{
	Children.Add(MakeShared<FDetailRow>(NAME_None, bAdvanced));
	return Children.Last()->Row.FilterString(SearchString);
}

FDetailRow& FDetailRow::AddPropertyRow(const TSharedRef<FPropertyNode>& InProperty, bool bInAdvanced)
{
	const FProperty* Shown = InProperty->GetProperty();
	Children.Add(MakeShared<FDetailRow>(Shown ? Shown->GetFName() : FName(), bInAdvanced, InProperty));
	return *Children.Last();
}

IDetailGroup& FDetailRow::AddGroupRow(FName GroupName, const FText& Title, bool bInAdvanced, bool bStartExpanded)
{
	const TSharedRef<FDetailRow> Group = MakeShared<FDetailRow>(GroupName, bInAdvanced);
	Group->bGroup = true;
	Group->bCollapsed = !bStartExpanded;
	Group->SetTitle(Title);
	Children.Add(Group);
	return *Group;
}

void FDetailRow::SetTitle(const FText& Title)
{
	const FSlateFontInfo Font = FEditorStyle::GetFontStyle("PropertyWindow.NormalFont");
	Row.FilterString(Title).NameContent()[SNew(STextBlock).Font(Font).Text(Title)];
}

void FDetailRow::Finish(FDetailLayout& Layout)
{
	const bool bShowsProperty = ShownProperty.IsValid() && IsListed();
	if (bShowsProperty && (bByDefault || !Layout.CustomizeValue(ShownProperty.ToSharedRef(), Row, *this)))
	{
		for (const TSharedRef<FPropertyNode>& Child : ShownProperty->GetChildren())
		{
			if (!Child->IsHiddenByCustomization())
			{
				AddProperty(Child);
			}
		}
	}
	// By index: nothing keeps a layout from adding to another one's rows.
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const TSharedRef<FDetailRow> Child = Children[Index];
		Child->Finish(Layout);
	}
}

void FDetailRow::Clear()
{
	for (const TSharedRef<FDetailRow>& Child : Children)
	{
		Child->Clear();
	}
	Children.Empty();
	Row.NameWidget.AttachWidget(SNullWidget::NullWidget);
	Row.ValueWidget.AttachWidget(SNullWidget::NullWidget);
}
