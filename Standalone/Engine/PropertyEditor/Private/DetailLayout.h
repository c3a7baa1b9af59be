// Copyright Corvane. MIT License.
#pragma once

#include "DetailLayoutBuilder.h"
#include "EditedObjects.h"

class FDetailCategory;
class FDetailWidgetRow;
class FLayoutRegistry;
class IDetailChildrenBuilder;
class IDetailCustomization;
class IDetailTreeNode;
class IPropertyTypeCustomization;

/** The rows for one set of objects, and the layouts that made them. */
class FDetailLayout : public IDetailLayoutBuilder
{
public:
	FDetailLayout(const TSharedRef<FEditedObjects>& InEdited, const TSharedRef<FLayoutRegistry>& InLayouts);
	FDetailLayout(const FDetailLayout&) = delete;
	FDetailLayout& operator=(const FDetailLayout&) = delete;
	~FDetailLayout();

	/** Makes the rows. To be called once. */
	void Build();

	virtual IDetailCategoryBuilder& EditCategory(
		FName CategoryName, const FText& NewLocalizedDisplayName, ECategoryPriority::Type CategoryType) override;
	virtual TSharedRef<IPropertyHandle> GetProperty(
		const FName PropertyPath, const UClass* ClassOutermost, FName InstanceName) override;

	/** Has the layout of the value's type fill the row and what is below it. @return false if there is none. */
	bool CustomizeValue(
		const TSharedRef<FPropertyNode>& Property, FDetailWidgetRow& Row, IDetailChildrenBuilder& ChildrenBuilder);

	const TArray<TSharedRef<IDetailTreeNode>>& GetRootNodes() const { return RootNodes; }
	const FEditedObjects& GetEdited() const { return *Edited; }

private:
	FDetailCategory& FindOrAddCategory(FName Name);

	// In this order, so that the layouts are gone before what they have handles of.
	TSharedRef<FEditedObjects> Edited;
	TSharedRef<FLayoutRegistry> Layouts;
	TArray<TSharedRef<IDetailCustomization>> ClassLayouts;
	TArray<TSharedRef<IPropertyTypeCustomization>> TypeLayouts;
	/** Those with rows, from the top down. */
	TArray<TSharedRef<IDetailTreeNode>> RootNodes;
	/** All, in the order of their making. */
	TArray<TSharedRef<FDetailCategory>> Categories;
};
