// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "TestPanel.h"

namespace
{
	const char* const Whole = "Simple(Shown Count Ratio Text Word Title Partner Depth*) More lists(How many? Points) "
							  "Shapes(Line(From(X Label) Between Width) Fixed(X Label) Fixed)";

	/** A panel whose one object is laid out by one function. */
	struct FLaidOutPanel : FTestPanel
	{
		explicit FLaidOutPanel(const FTestClassLayout::FLayOut& LayOut) : Object(Make<UPanelObject>(TEXT("A")))
		{
			Module.RegisterCustomClassLayout("PanelObject", FTestClassLayout::Maker(LayOut));
			Show({&Object});
		}

		UPanelObject& Object;
	};

	std::string FilterOf(const IDetailTreeNode& Node)
	{
		TArray<FString> Strings;
		Node.GetFilterStrings(Strings);
		std::string Result;
		for (const FString& String : Strings)
		{
			Result += FTestPanel::ToString(String) + ";";
		}
		return Result;
	}

	FText Text(const TCHAR* String)
	{
		return FText::FromString(String);
	}
}

TEST(IDetailLayoutBuilder, HasARowForEachPropertyByItself)
{
	FTestPanel Panel;
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	Object.Part = NewObject<UPanelPart>(&Object);
	Panel.Show({&Object});
	EXPECT_EQ(Panel.Describe(), Whole);
	Object.Numbers = {4, 5};
	Object.Points.SetNum(1);
	Panel.Show({&Object});
	EXPECT_EQ(Panel.Describe(TEXT("More lists")), "How many?(0 1) Points(0(X Label))");
}

TEST(IDetailLayoutBuilder, PutsTheProperiesOfADerivedClassFirst)
{
	FTestPanel Panel;
	Panel.Show({&Panel.Make<UPanelChild>(TEXT("A"))});
	EXPECT_EQ(Panel.Describe().find("Own(Own Count) Simple(Extra Shown Count"), 0u);
}

TEST(IDetailLayoutBuilder, TellsWhatEachNodeIs)
{
	FLaidOutPanel Panel(
		[](IDetailLayoutBuilder& Builder)
		{
			IDetailCategoryBuilder& Category = Builder.EditCategory("Simple");
			Category.AddGroup("Group", Text(TEXT("The group"))).AddWidgetRow().FilterString(Text(TEXT("found")));
			Category.AddGroup("Open", Text(TEXT("Open one")), true, true).AddWidgetRow();
		});
	EXPECT_EQ(Panel.Node("More lists").GetNodeType(), EDetailNodeType::Category);
	EXPECT_EQ(Panel.Node("More lists").GetNodeName(), "More lists");
	EXPECT_EQ(FilterOf(Panel.Node("More lists")), "More lists;");
	EXPECT_FALSE(Panel.Node("More lists").GetInitiallyCollapsed());
	EXPECT_FALSE(Panel.Node("More lists").CreatePropertyHandle().IsValid());
	EXPECT_EQ(Panel.Node("Simple/Shown").GetNodeType(), EDetailNodeType::Item);
	EXPECT_EQ(Panel.Node("Simple/Shown").GetNodeName(), "bShown");
	EXPECT_EQ(FilterOf(Panel.Node("Simple/Shown")), "Shown;");
	EXPECT_FALSE(Panel.Node("Simple/Shown").GetInitiallyCollapsed());
	EXPECT_TRUE(Panel.Node("Shapes/Line").GetInitiallyCollapsed());
	EXPECT_FALSE(Panel.Node("Shapes/Line").IsGroup());
	IDetailTreeNode& Group = Panel.Node("Simple/The group");
	EXPECT_EQ(Group.GetNodeType(), EDetailNodeType::Item);
	EXPECT_TRUE(Group.IsGroup());
	EXPECT_FALSE(Group.IsAdvanced());
	EXPECT_EQ(Group.GetNodeName(), "Group");
	EXPECT_EQ(FilterOf(Group), "The group;");
	EXPECT_TRUE(Group.GetInitiallyCollapsed());
	EXPECT_FALSE(Group.CreatePropertyHandle().IsValid());
	EXPECT_FALSE(Panel.Node("Simple/Open one").GetInitiallyCollapsed());
	TArray<TSharedRef<IDetailTreeNode>> Rows;
	Group.GetChildren(Rows);
	ASSERT_EQ(Rows.Num(), 1);
	EXPECT_TRUE(Rows[0]->GetNodeName().IsNone());
	EXPECT_EQ(FilterOf(*Rows[0]), "found;");
	EXPECT_FALSE(Rows[0]->IsAdvanced());
	EXPECT_FALSE(Rows[0]->CreatePropertyHandle().IsValid());
	Panel.Node("Simple/Open one").GetChildren(Rows);
	EXPECT_TRUE(Rows[1]->IsAdvanced());
}

TEST(IDetailLayoutBuilder, AsksTheLayoutsOfTheClassAndItsSupersInTheOrderOfRegistration)
{
	FTestPanel Panel;
	std::string Called;
	const auto Log = [&](const char* Name)
	{ return FTestClassLayout::Maker([&Called, Name](IDetailLayoutBuilder&) { Called += Name; }); };
	Panel.Module.RegisterCustomClassLayout("PanelChild", Log("child "));
	Panel.Module.RegisterCustomClassLayout("Object", Log("object "));
	Panel.Module.RegisterCustomClassLayout("PanelSibling", Log("sibling "));
	Panel.Module.RegisterCustomClassLayout("PanelObject", Log("panel "));
	Panel.Module.RegisterCustomClassLayout("Actor", FOnGetDetailCustomizationInstance());
	UObject* Child = &Panel.Make<UPanelChild>(TEXT("A"));
	UObject* Sibling = &Panel.Make<UPanelSibling>(TEXT("B"));
	Panel.Show({Child});
	EXPECT_EQ(Called, "child object panel ");
	// Of different classes only what they have in common counts.
	Called.clear();
	Panel.Show({Child, Sibling});
	EXPECT_EQ(Called, "object panel ");
	// One of the same name takes the place.
	Called.clear();
	Panel.Module.RegisterCustomClassLayout("panelchild", Log("new "));
	Panel.Show({Child});
	EXPECT_EQ(Called, "new object panel ");
	Called.clear();
	Panel.Module.RegisterCustomClassLayout("PanelObject", FOnGetDetailCustomizationInstance());
	Panel.Show({});
	EXPECT_EQ(Called, "");
	Panel.Show({Sibling});
	EXPECT_EQ(Called, "object sibling ");
}

TEST(IDetailLayoutBuilder, FindsPropertiesByTheirPath)
{
	std::string Found;
	UPanelChild* Child = nullptr;
	FTestPanel Panel;
	Panel.Module.RegisterCustomClassLayout("PanelObject",
		FTestClassLayout::Maker(
			[&](IDetailLayoutBuilder& Builder)
			{
				const auto Find = [&](const TCHAR* Path, const UClass* Class)
				{
					const TSharedRef<IPropertyHandle> Handle = Builder.GetProperty(Path, Class);
					Found += Handle->IsValidHandle() ? FTestPanel::ToString(Handle->GeneratePathToProperty()) : "-";
					Found += " ";
				};
				Find(TEXT("count"), nullptr);
				Find(TEXT("Line.From.X"), nullptr);
				Find(TEXT("OwnCount"), UPanelChild::StaticClass());
				Find(TEXT("Count"), UPanelChild::StaticClass());
				Find(TEXT("OwnCount"), UPanelObject::StaticClass());
				Find(TEXT("Line.From.X"), UPanelPart::StaticClass());
				for (const TCHAR* Path : {TEXT("None"), TEXT("Line.Secret"), TEXT("Secret"), TEXT("Line."),
						 TEXT(".Line"), TEXT("Line..From"), TEXT("Count.X"), TEXT("X")})
				{
					Find(Path, nullptr);
				}
			}));
	Child = &Panel.Make<UPanelChild>(TEXT("A"));
	Panel.Show({Child});
	EXPECT_EQ(Found, "Count Line.From.X OwnCount Count - - - - - Line - - - - ");
}

TEST(IDetailLayoutBuilder, MakesNoRowForWhatIsHidden)
{
	FLaidOutPanel Panel(
		[](IDetailLayoutBuilder& Builder)
		{
			Builder.GetProperty("Count")->MarkHiddenByCustomization();
			Builder.GetProperty("Line.From.X")->MarkHiddenByCustomization();
			Builder.GetProperty("Numbers")->MarkHiddenByCustomization();
			Builder.GetProperty("Points")->MarkHiddenByCustomization();
		});
	EXPECT_EQ(Panel.Describe(),
		"Simple(Shown Ratio Text Word Title Partner Depth*) "
		"Shapes(Line(From(Label) Between Width) Fixed(X Label) Fixed)");
}

TEST(IDetailLayoutBuilder, PutsAddedPropertiesBeforeTheOthersOfTheirSection)
{
	FLaidOutPanel Panel(
		[](IDetailLayoutBuilder& Builder)
		{
			IDetailCategoryBuilder& Category = Builder.EditCategory("Simple");
			Category.AddProperty(Builder.GetProperty("Ratio"), EPropertyLocation::Advanced);
			Category.AddProperty(Builder.GetProperty("Partner"));
			Category.AddProperty(Builder.GetProperty("Count"), EPropertyLocation::Common);
			Category.AddProperty(Builder.GetProperty("Line.From"), EPropertyLocation::Advanced);
		});
	EXPECT_EQ(Panel.Describe(TEXT("Simple")), "Partner Count Shown Text Word Title Ratio* From*(X* Label*) Depth*");
	EXPECT_EQ(Panel.Describe(TEXT("Shapes")), "Line(Between Width) Fixed(X Label) Fixed");
}

TEST(IDetailLayoutBuilder, TakesTheSectionOfTheDeclarationUnlessTold)
{
	FLaidOutPanel Panel(
		[](IDetailLayoutBuilder& Builder)
		{
			IDetailCategoryBuilder& Category = Builder.EditCategory("Own");
			const TSharedRef<IPropertyHandle> Depth = Builder.GetProperty("Depth");
			EXPECT_EQ(Category.AddProperty(Depth).GetPropertyHandle(), Depth);
			Category.AddProperty(Depth, EPropertyLocation::Common);
			Category.AddProperty(Builder.GetProperty("Nobody"), EPropertyLocation::Common);
		});
	EXPECT_EQ(Panel.Describe(TEXT("Own")), "Depth Depth*");
	EXPECT_EQ(Panel.Describe(TEXT("Simple")), "Shown Count Ratio Text Word Title Partner");
}

TEST(IDetailLayoutBuilder, GivesTheDefaultPropertiesOfACategory)
{
	std::string Seen;
	FLaidOutPanel Panel(
		[&](IDetailLayoutBuilder& Builder)
		{
			const auto Look = [&](const TCHAR* Name, bool bSimple, bool bAdvanced)
			{
				TArray<TSharedRef<IPropertyHandle>> Properties;
				Builder.EditCategory(Name).GetDefaultProperties(Properties, bSimple, bAdvanced);
				for (const TSharedRef<IPropertyHandle>& Property : Properties)
				{
					Seen += FTestPanel::ToString(Property->GeneratePathToProperty()) + " ";
				}
				Seen += "| ";
			};
			Builder.GetProperty("Text")->MarkHiddenByCustomization();
			Builder.EditCategory("Other").AddProperty(Builder.GetProperty("Word"));
			Look(TEXT("Simple"), true, false);
			Look(TEXT("simple"), false, true);
			Look(TEXT("Shapes"), true, true);
			Look(TEXT("Other"), true, true);
		});
	EXPECT_EQ(Seen, "bShown Count Ratio Title Partner | Depth | Line Fixed bFixed | | ");
}

TEST(IDetailLayoutBuilder, OrdersCategoriesByPriorityThenByFirstAppearance)
{
	FLaidOutPanel Panel(
		[](IDetailLayoutBuilder& Builder)
		{
			Builder.EditCategory("Last", FText(), ECategoryPriority::Uncommon).AddGroup("G", Text(TEXT("G")));
			Builder.EditCategory("New").AddGroup("G", Text(TEXT("G")));
			Builder.EditCategory("Empty", FText(), ECategoryPriority::Variable);
			Builder.EditCategory("Shapes", FText(), ECategoryPriority::Transform);
			Builder.EditCategory("More lists", Text(TEXT("Lists")), ECategoryPriority::Important);
			Builder.EditCategory("more lists", Text(TEXT("Too late")), ECategoryPriority::TypeSpecific);
		});
	EXPECT_EQ(Panel.Describe(),
		"Shapes(Line(From(X Label) Between Width) Fixed(X Label) Fixed) Lists(How many? Points) "
		"Simple(Shown Count Ratio Text Word Title Partner Depth*) New(G#) Last(G#)");
}

TEST(IDetailLayoutBuilder, ListsGroupsAmongWhatLayoutsAdd)
{
	FDetailWidgetRow* Kept = nullptr;
	FLaidOutPanel Panel(
		[&](IDetailLayoutBuilder& Builder)
		{
			IDetailCategoryBuilder& Category = Builder.EditCategory("Simple");
			IDetailGroup& Group = Category.AddGroup("Same", Text(TEXT("Same")), true);
			Category.AddProperty(Builder.GetProperty("Count"), EPropertyLocation::Advanced);
			IDetailGroup& Other = Category.AddGroup("Same", Text(TEXT("Same")), true);
			Kept = &Group.AddWidgetRow();
			// References stay good however much is added.
			for (int32 Index = 0; Index < 100; ++Index)
			{
				Category.AddGroup("More", Text(TEXT("More"))).AddWidgetRow();
				Other.AddWidgetRow();
			}
			Kept->NameContent()[FTestPanel::TextWidget(TEXT("First"))];
			Group.AddWidgetRow().NameContent()[FTestPanel::TextWidget(TEXT("Second"))];
		});
	const std::string Simple = Panel.Describe(TEXT("Simple"));
	EXPECT_EQ(Simple.find("More#( ) More#"), std::string::npos) << "an empty row has no name";
	EXPECT_NE(Simple.find("Partner Same#*(First* Second*) Count* Same#*(*"), std::string::npos) << Simple;
	EXPECT_EQ(Simple.substr(Simple.size() - 7), " Depth*");
}

TEST(IDetailLayoutBuilder, HandsOutACustomRowsOwnWidgets)
{
	const TSharedRef<SWidget> Value = FTestPanel::TextWidget(TEXT("value"));
	FLaidOutPanel Panel(
		[&](IDetailLayoutBuilder& Builder)
		{
			IDetailGroup& Group = Builder.EditCategory("Own").AddGroup("Group", Text(TEXT("Group")));
			// clang-format off
			Group.AddWidgetRow()
				.NameContent()[FTestPanel::TextWidget(TEXT("name"))]
				.ValueContent().HAlign(HAlign_Right).VAlign(VAlign_Bottom).MinDesiredWidth(13.0f).MaxDesiredWidth(50.0f)
				[
					Value
				];
			// clang-format on
			Group.AddWidgetRow().NameContent()[FTestPanel::TextWidget(TEXT("alone"))];
		});
	const FNodeWidgets Widgets = Panel.Node("Own/Group/name").CreateNodeWidgets();
	EXPECT_EQ(Widgets.ValueWidget, Value);
	EXPECT_EQ(Widgets.ValueWidgetLayoutData.HorizontalAlignment, HAlign_Right);
	EXPECT_EQ(Widgets.ValueWidgetLayoutData.VerticalAlignment, VAlign_Bottom);
	EXPECT_EQ(Widgets.ValueWidgetLayoutData.MinWidth.GetValue(), 13.0f);
	EXPECT_EQ(Widgets.ValueWidgetLayoutData.MaxWidth.GetValue(), 50.0f);
	EXPECT_EQ(Widgets.NameWidgetLayoutData.HorizontalAlignment, HAlign_Fill);
	EXPECT_EQ(Widgets.NameWidgetLayoutData.VerticalAlignment, VAlign_Center);
	EXPECT_FALSE(Widgets.NameWidgetLayoutData.MinWidth.IsSet() || Widgets.NameWidgetLayoutData.MaxWidth.IsSet());
	const FNodeWidgets Alone = Panel.Node("Own/Group/alone").CreateNodeWidgets();
	EXPECT_TRUE(Alone.NameWidget.IsValid());
	EXPECT_FALSE(Alone.ValueWidget.IsValid());
	const FNodeWidgets Header = Panel.Node("Own/Group").CreateNodeWidgets();
	EXPECT_FALSE(Header.ValueWidget.IsValid());
	// A property's own row makes them anew.
	EXPECT_NE(Panel.ValueWidget(TEXT("Count")), Panel.ValueWidget(TEXT("Count")));
}
