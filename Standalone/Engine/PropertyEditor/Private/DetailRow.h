// Copyright Corvane. MIT License.
#pragma once

#include "DetailWidgetRow.h"
#include "IDetailChildrenBuilder.h"
#include "IDetailGroup.h"
#include "IDetailPropertyRow.h"
#include "IDetailTreeNode.h"
#include "PropertyNode.h"

class FDetailLayout;

/**
 * A row with the rows below it: it shows a property, or what its maker puts into it, or it is the header of a group.
 * Below a property are its members or elements, unless the layout of its type adds others.
 */
class FDetailRow : public IDetailTreeNode, public IDetailGroup, public IDetailPropertyRow, public IDetailChildrenBuilder
{
public:
	FDetailRow(FName InName, bool bInAdvanced, const TSharedPtr<FPropertyNode>& InProperty = nullptr)
		: NodeName(InName), ShownProperty(InProperty), bAdvanced(bInAdvanced)
	{}

	virtual EDetailNodeType GetNodeType() const override { return EDetailNodeType::Item; }
	virtual FNodeWidgets CreateNodeWidgets() const override;
	virtual void GetChildren(TArray<TSharedRef<IDetailTreeNode>>& OutChildren) override;
	virtual FName GetNodeName() const override { return NodeName; }
	virtual TSharedPtr<IPropertyHandle> CreatePropertyHandle() const override { return ShownProperty; }
	virtual void GetFilterStrings(TArray<FString>& OutFilterStrings) const override;
	virtual bool GetInitiallyCollapsed() const override
	{
		return ShownProperty.IsValid() ? Children.Num() > 0 : bCollapsed;
	}
	virtual bool IsAdvanced() const override { return bAdvanced; }
	virtual bool IsGroup() const override { return bGroup; }

	virtual FDetailWidgetRow& AddWidgetRow() override { return AddCustomRow(FText()); }
	virtual TSharedPtr<IPropertyHandle> GetPropertyHandle() const override { return ShownProperty; }
	virtual IDetailPropertyRow& AddProperty(TSharedRef<IPropertyHandle> PropertyHandle) override;
	virtual FDetailWidgetRow& AddCustomRow(const FText& SearchString) override;

	/** False for a row of no property: it shows nothing, and only its maker's reference means it. */
	bool IsListed() const { return !ShownProperty.IsValid() || ShownProperty->GetProperty(); }
	/** Makes the rows below, after all layouts have said what they want. */
	void Finish(FDetailLayout& Layout);
	/** Lets go of rows and widgets: whoever still holds the row shall not reach what made them. */
	void Clear();

protected:
	/** Shows a text, by which it is found as well. */
	void SetTitle(const FText& Title);
	FDetailRow& AddPropertyRow(const TSharedRef<FPropertyNode>& InProperty, bool bInAdvanced);
	IDetailGroup& AddGroupRow(FName GroupName, const FText& Title, bool bInAdvanced, bool bStartExpanded);

	TArray<TSharedRef<FDetailRow>> Children;

private:
	FName NodeName;
	/** Null for a row of another kind. */
	TSharedPtr<FPropertyNode> ShownProperty;
	FDetailWidgetRow Row;
	bool bAdvanced;
	bool bGroup = false;
	bool bCollapsed = false;
	/** Whatever layout the type has. */
	bool bByDefault = false;
};
