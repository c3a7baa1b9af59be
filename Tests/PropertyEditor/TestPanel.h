// Copyright Corvane. MIT License.
#pragma once

#include "TestEditor.h"

#include <functional>
#include <initializer_list>
#include <string>

#include "DetailCategoryBuilder.h"
#include "DetailLayoutBuilder.h"
#include "IDetailCustomization.h"
#include "IDetailGroup.h"
#include "IDetailPropertyRow.h"
#include "IDetailTreeNode.h"
#include "IPropertyRowGenerator.h"
#include "IPropertyTypeCustomization.h"
#include "PanelObjects.h"
#include "PropertyEditorModule.h"
#include "PropertyHandle.h"
#include "UObject/Package.h"

class SEditableTextBox;
class SWidget;

/** Lays out a class as the test says; knows how many of its kind there are. */
class FTestClassLayout : public IDetailCustomization
{
public:
	typedef std::function<void(IDetailLayoutBuilder&)> FLayOut;

	explicit FTestClassLayout(const FLayOut& InLayOut) : LayOut(InLayOut) { ++NumAlive; }
	virtual ~FTestClassLayout() override { --NumAlive; }
	virtual void CustomizeDetails(IDetailLayoutBuilder& DetailBuilder) override { LayOut(DetailBuilder); }

	static FOnGetDetailCustomizationInstance Maker(const FLayOut& InLayOut);

	static int32 NumAlive;

private:
	FLayOut LayOut;
};

/** Lays out values as the test says; knows how many of its kind there are. */
class FTestTypeLayout : public IPropertyTypeCustomization
{
public:
	typedef std::function<void(const TSharedRef<IPropertyHandle>&, FDetailWidgetRow&)> FHeader;
	typedef std::function<void(const TSharedRef<IPropertyHandle>&, IDetailChildrenBuilder&)> FChildren;

	FTestTypeLayout(const FHeader& InHeader, const FChildren& InChildren) : Header(InHeader), Below(InChildren)
	{
		++NumAlive;
	}
	virtual ~FTestTypeLayout() override { --NumAlive; }
	virtual void CustomizeHeader(TSharedRef<IPropertyHandle> PropertyHandle, FDetailWidgetRow& HeaderRow,
		IPropertyTypeCustomizationUtils&) override
	{
		Header(PropertyHandle, HeaderRow);
	}
	virtual void CustomizeChildren(TSharedRef<IPropertyHandle> PropertyHandle, IDetailChildrenBuilder& ChildBuilder,
		IPropertyTypeCustomizationUtils&) override
	{
		Below(PropertyHandle, ChildBuilder);
	}

	static FOnGetPropertyTypeCustomizationInstance Maker(const FHeader& InHeader, const FChildren& InChildren);
	/** One that leaves the row alone and adds one custom row: "Name", "Name's value". */
	static FOnGetPropertyTypeCustomizationInstance Maker(const TCHAR* RowName);

	static int32 NumAlive;

private:
	FHeader Header;
	FChildren Below;
};

/** A panel in a fresh editor, and the eyes of a user. */
class FTestPanel
{
public:
	FTestPanel();

	/** An object of a package that can get dirty. Nothing keeps it from the collector. */
	template <typename ObjectType>
	ObjectType& Make(const TCHAR* Name)
	{
		return *NewObject<ObjectType>(Package, Name, RF_Public | RF_Transactional);
	}
	void Show(std::initializer_list<UObject*> Objects) const { Generator->SetObjects(TArray<UObject*>(Objects)); }

	/** "Simple(Shown Count Line(...)) Own(...)": all names; "*" marks what is advanced, "#" a group. */
	std::string Describe() const;
	/** The category's part of it. */
	std::string Describe(const TCHAR* Category) const;

	/** The row whose names from the category on are these, divided by "/"; null if there is none. */
	TSharedPtr<IDetailTreeNode> FindNode(const std::string& Path) const;
	IDetailTreeNode& Node(const std::string& Path) const;
	/** The handle of the row that shows the property at the path; fatal if there is none. */
	TSharedRef<IPropertyHandle> Handle(const TCHAR* PropertyPath) const;
	TSharedRef<SWidget> ValueWidget(const TCHAR* PropertyPath) const;

	/** The first text of the widget, or of an edit box; empty without. */
	static std::string TextOf(const TSharedPtr<SWidget>& Widget);
	static TSharedRef<SWidget> TextWidget(const TCHAR* Text);
	static std::string ToString(const FString& Text) { return TCHAR_TO_UTF8(*Text); }

	bool IsDirty() const;
	void Save() const;
	int32 CountUndoSteps() const;

	FTestEditor Editor;
	FPropertyEditorModule Module;
	UPackage* Package;
	TSharedRef<IPropertyRowGenerator> Generator;
	int32 NumRefreshed = 0;
	/** The properties whose changes the panel was told of, with commas behind. */
	std::string Finished;
};
