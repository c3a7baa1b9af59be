// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "TestPanel.h"

namespace
{
	typedef TSharedRef<IPropertyHandle> FHandle;

	void LeaveHeader(const FHandle&, FDetailWidgetRow&) {}
	void AddNothing(const FHandle&, IDetailChildrenBuilder&) {}

	/** Values at one path or below it. */
	class FAtPath : public IPropertyTypeIdentifier
	{
	public:
		explicit FAtPath(const TCHAR* InPath) : Path(InPath) {}
		virtual bool IsPropertyTypeCustomized(const IPropertyHandle& PropertyHandle) const override
		{
			return Path.IsEmpty() || PropertyHandle.GeneratePathToProperty().StartsWith(Path);
		}

	private:
		FString Path;
	};
}

TEST(IPropertyTypeCustomization, HasAnInstanceForEachValue)
{
	FTestPanel Panel;
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	Object.Points.SetNum(2);
	Panel.Module.RegisterCustomPropertyTypeLayout("PanelPoint", FTestTypeLayout::Maker(TEXT("custom")));
	Panel.Show({&Object});
	EXPECT_EQ(Panel.Describe(TEXT("More lists")), "How many? Points(0(custom) 1(custom))");
	EXPECT_EQ(Panel.Describe(TEXT("Shapes")), "Line(From(custom) Between Width) Fixed(custom) Fixed");
	EXPECT_EQ(FTestTypeLayout::NumAlive, 4);
	Panel.Show({});
	EXPECT_EQ(FTestTypeLayout::NumAlive, 0);
}

TEST(IPropertyTypeCustomization, FillsTheHeaderOrLeavesItToThePanel)
{
	FTestPanel Panel;
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	Panel.Module.RegisterCustomPropertyTypeLayout("PanelPoint",
		FTestTypeLayout::Maker(
			[](const FHandle& Handle, FDetailWidgetRow& Row)
			{
				if (Handle->GetProperty()->GetFName() == "From")
				{
					Row.NameContent()[FTestPanel::TextWidget(TEXT("my name"))];
				}
				else
				{
					Row.FilterString(FText::FromString(TEXT("point")))
						.ValueContent()
						.MinDesiredWidth(5.0f)[FTestPanel::TextWidget(TEXT("my value"))];
				}
			},
			AddNothing));
	Panel.Show({&Object});
	const FNodeWidgets Own = Panel.Node("Shapes/Fixed").CreateNodeWidgets();
	EXPECT_EQ(FTestPanel::TextOf(Own.NameWidget), "Fixed");
	EXPECT_EQ(FTestPanel::TextOf(Own.ValueWidget), "my value");
	EXPECT_EQ(Own.ValueWidgetLayoutData.MinWidth.GetValue(), 5.0f);
	TArray<FString> Filters;
	Panel.Node("Shapes/Fixed").GetFilterStrings(Filters);
	EXPECT_EQ(Filters, TArray<FString>({TEXT("Fixed"), TEXT("point")}));
	EXPECT_FALSE(Panel.Node("Shapes/Fixed").GetInitiallyCollapsed());
	const FNodeWidgets Default = Panel.Node("Shapes/Line/my name").CreateNodeWidgets();
	EXPECT_EQ(FTestPanel::TextOf(Default.ValueWidget), "2 members");
	EXPECT_EQ(Default.ValueWidgetLayoutData.VerticalAlignment, VAlign_Center);
}

TEST(IPropertyTypeCustomization, AddsRowsInTheOrderOfItsCalls)
{
	FTestPanel Panel;
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	Panel.Module.RegisterCustomPropertyTypeLayout("PanelLine",
		FTestTypeLayout::Maker(LeaveHeader,
			[](const FHandle& Handle, IDetailChildrenBuilder& Builder)
			{
				const FHandle From = Handle->GetChildHandle("From").ToSharedRef();
				EXPECT_EQ(Builder.AddProperty(Handle->GetChildHandle("Width").ToSharedRef()).GetPropertyHandle(),
					Handle->GetChildHandle("Width"));
				Builder.AddCustomRow(FText::FromString(TEXT("search")))
					.NameContent()[FTestPanel::TextWidget(TEXT("custom"))];
				// The same property twice makes two rows.
				Builder.AddProperty(From);
				Builder.AddProperty(From);
			}));
	Panel.Module.RegisterCustomPropertyTypeLayout("PanelPoint", FTestTypeLayout::Maker(TEXT("point")));
	Panel.Show({&Object});
	EXPECT_EQ(Panel.Describe(TEXT("Shapes")), "Line(Width custom From(point) From(point)) Fixed(point) Fixed");
	EXPECT_EQ(FTestTypeLayout::NumAlive, 4);
	TArray<FString> Filters;
	Panel.Node("Shapes/Line/custom").GetFilterStrings(Filters);
	EXPECT_EQ(Filters, TArray<FString>({TEXT("search")}));
	EXPECT_TRUE(Panel.Node("Shapes/Line/custom").GetNodeName().IsNone());
}

TEST(IPropertyTypeCustomization, GetsItsOwnValueWithTheDefaultRows)
{
	FTestPanel Panel;
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	Panel.Module.RegisterCustomPropertyTypeLayout("PanelPoint",
		FTestTypeLayout::Maker(
			LeaveHeader, [](const FHandle& Handle, IDetailChildrenBuilder& Builder) { Builder.AddProperty(Handle); }));
	Panel.Show({&Object});
	EXPECT_EQ(Panel.Describe(TEXT("Shapes")), "Line(From(From(X Label)) Between Width) Fixed(Fixed(X Label)) Fixed");
}

TEST(IPropertyTypeCustomization, AsksIdentifiersFirstAndTheLastOneBeforeTheOthers)
{
	FTestPanel Panel;
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	const TSharedRef<FAtPath> AtLine = MakeShared<FAtPath>(TEXT("Line"));
	Panel.Module.RegisterCustomPropertyTypeLayout("PanelPoint", FTestTypeLayout::Maker(TEXT("line")), AtLine);
	Panel.Module.RegisterCustomPropertyTypeLayout("PanelPoint", FTestTypeLayout::Maker(TEXT("all")));
	Panel.Show({&Object});
	EXPECT_EQ(Panel.Describe(TEXT("Shapes")), "Line(From(line) Between Width) Fixed(all) Fixed");
	Panel.Module.RegisterCustomPropertyTypeLayout(
		"PanelPoint", FTestTypeLayout::Maker(TEXT("any")), MakeShared<FAtPath>(TEXT("")));
	Panel.Module.RegisterCustomPropertyTypeLayout("PanelPoint", FTestTypeLayout::Maker(TEXT("new all")));
	Panel.Show({&Object});
	EXPECT_EQ(Panel.Describe(TEXT("Shapes")), "Line(From(any) Between Width) Fixed(any) Fixed");
	// Registered again, it is the last one; no more than one layout stands for an identifier.
	Panel.Module.RegisterCustomPropertyTypeLayout("PanelPoint", FTestTypeLayout::Maker(TEXT("line 2")), AtLine);
	Panel.Show({&Object});
	EXPECT_EQ(Panel.Describe(TEXT("Shapes")), "Line(From(line 2) Between Width) Fixed(any) Fixed");
	Panel.Module.RegisterCustomPropertyTypeLayout("Vector", FTestTypeLayout::Maker(TEXT("vector")));
	EXPECT_EQ(Panel.Module.GetCustomPropertyTypeLayoutNames(), TArray<FName>({"PanelPoint", "Vector"}));
}

TEST(IPropertyTypeCustomization, GivesWayToTheDefaultRowsWithoutMaker)
{
	FTestPanel Panel;
	Panel.Module.RegisterCustomPropertyTypeLayout("PanelPoint", FTestTypeLayout::Maker(TEXT("all")));
	Panel.Module.RegisterCustomPropertyTypeLayout("PanelPoint", FOnGetPropertyTypeCustomizationInstance());
	Panel.Show({&Panel.Make<UPanelObject>(TEXT("A"))});
	EXPECT_EQ(Panel.Describe(TEXT("Shapes")), "Line(From(X Label) Between Width) Fixed(X Label) Fixed");
}

TEST(IPropertyTypeCustomization, MayWriteWhileTheRowsAreBuilt)
{
	FTestPanel Panel;
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	Panel.Module.RegisterCustomPropertyTypeLayout("PanelPoint",
		FTestTypeLayout::Maker(LeaveHeader,
			[](const FHandle& Handle, IDetailChildrenBuilder&)
			{ EXPECT_EQ(Handle->GetChildHandle("X")->SetValue(70), FPropertyAccess::Success); }));
	bool bRefreshed = true;
	Panel.Generator->OnFinishedChangingProperties().AddLambda(
		[&](const FPropertyChangedEvent&) { bRefreshed = Panel.Generator->RefreshIfOutdated(); });
	Panel.Show({&Object});
	EXPECT_EQ(Object.Line.From.X, 70);
	EXPECT_EQ(Object.Fixed.X, 70);
	EXPECT_FALSE(bRefreshed);
	EXPECT_EQ(Panel.NumRefreshed, 1);
	EXPECT_EQ(Panel.Finished, "Line/X,Fixed/X,");
	EXPECT_EQ(Panel.CountUndoSteps(), 2);
}
