// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "TestPanel.h"

#include "AllocationCount.h"

#include "Editor.h"
#include "EveryPropertyActor.h"

namespace
{
	TArray<UObject*> OutersOf(const FTestPanel& Panel)
	{
		TArray<UObject*> Outers;
		Panel.Handle(TEXT("Count"))->GetOuterObjects(Outers);
		return Outers;
	}
}

TEST(IPropertyRowGenerator, ShowsNothingWithoutObjects)
{
	FTestPanel Panel;
	EXPECT_EQ(Panel.Describe(), "");
	EXPECT_FALSE(Panel.Generator->RefreshIfOutdated());
	Panel.Show({nullptr});
	EXPECT_EQ(Panel.Describe(), "");
	EXPECT_EQ(Panel.NumRefreshed, 1);
}

TEST(IPropertyRowGenerator, LeavesOutWhatIsNoObjectAnyMoreAndWhatStandsThereTwice)
{
	FTestPanel Panel;
	UPanelObject& A = Panel.Make<UPanelObject>(TEXT("A"));
	UPanelObject& B = Panel.Make<UPanelObject>(TEXT("B"));
	B.MarkPendingKill();
	Panel.Show({nullptr, &A, &B, &A});
	EXPECT_EQ(OutersOf(Panel), TArray<UObject*>({&A}));
}

TEST(IPropertyRowGenerator, ShowsWhatTheNearestCommonClassHas)
{
	FTestPanel Panel;
	UPanelObject& Child = Panel.Make<UPanelChild>(TEXT("A"));
	UPanelObject& Sibling = Panel.Make<UPanelSibling>(TEXT("B"));
	UPanelObject& Base = Panel.Make<UPanelObject>(TEXT("C"));
	UPanelPart& Stranger = Panel.Make<UPanelPart>(TEXT("D"));
	Panel.Show({&Child, &Panel.Make<UPanelChild>(TEXT("E"))});
	EXPECT_TRUE(Panel.FindNode("Own/Own Count").IsValid());
	for (const auto& Objects : {std::initializer_list<UObject*>{&Child, &Sibling}, {&Base, &Child}, {&Child, &Base}})
	{
		Panel.Show(Objects);
		EXPECT_FALSE(Panel.FindNode("Own").IsValid());
		EXPECT_TRUE(Panel.FindNode("Simple/Count").IsValid());
	}
	Panel.Show({&Child, &Stranger});
	EXPECT_EQ(Panel.Describe(), "");
}

TEST(IPropertyRowGenerator, ShowsEveryKindOfPropertyOfAnActor)
{
	FTestPanel Panel;
	AEveryPropertyActor& Actor =
		static_cast<AEveryPropertyActor&>(FTestEditor::Spawn(Panel.Editor.GetWorld(), TEXT("EveryPropertyActor")));
	Actor.Numbers = {1};
	Actor.Structs.SetNum(1);
	Actor.Actors = {&Actor};
	Panel.Show({&Actor});
	EXPECT_EQ(Panel.Describe(TEXT("Test")),
		"Flag Number Fraction Text Label Inner(Label Count Offset(X Y Z) Target) Numbers(0) "
		"Structs(0(Label Count Offset(X Y Z) Target)) Actors(0) Texture Translated Passing");
	EXPECT_EQ(Panel.Handle(TEXT("Structs[0].Offset.Y"))->SetValue(4.5f), FPropertyAccess::Success);
	EXPECT_EQ(Actor.Structs[0].Offset.Y, 4.5f);
	FString Text;
	EXPECT_EQ(Panel.Handle(TEXT("Actors[0]"))->GetValueAsFormattedString(Text), FPropertyAccess::Success);
	EXPECT_TRUE(Text.Equals(Actor.GetPathName()));
	EXPECT_EQ(Panel.Handle(TEXT("Structs[0].Target"))->SetValueFromFormattedString(Text), FPropertyAccess::Success);
	EXPECT_EQ(Actor.Structs[0].Target, &Actor);
	GEditor->UndoTransaction();
	EXPECT_EQ(Actor.Structs[0].Target, nullptr);
}

TEST(IPropertyRowGenerator, RefreshesWhenShownArraysAreOfAnotherLength)
{
	FTestPanel Panel;
	UPanelObject& A = Panel.Make<UPanelObject>(TEXT("A"));
	UPanelObject& B = Panel.Make<UPanelObject>(TEXT("B"));
	A.Numbers = {1, 2};
	B.Numbers = {1, 2, 3};
	Panel.Show({&A, &B});
	EXPECT_EQ(Panel.NumRefreshed, 1);
	A.Numbers = {5, 6};
	EXPECT_FALSE(Panel.Generator->RefreshIfOutdated());
	// Those that all have are the same ones.
	B.Numbers.Add(4);
	EXPECT_FALSE(Panel.Generator->RefreshIfOutdated());
	A.Numbers.Add(7);
	EXPECT_EQ(Panel.Describe(TEXT("More lists")), "How many?(0 1) Points");
	EXPECT_TRUE(Panel.Generator->RefreshIfOutdated());
	EXPECT_EQ(Panel.Describe(TEXT("More lists")), "How many?(0 1 2) Points");
	EXPECT_EQ(Panel.NumRefreshed, 2);
	EXPECT_FALSE(Panel.Generator->RefreshIfOutdated());
	A.Line.Between.SetNum(1);
	B.Line.Between.SetNum(1);
	B.Numbers.Empty();
	EXPECT_TRUE(Panel.Generator->RefreshIfOutdated());
	EXPECT_EQ(Panel.Describe(TEXT("More lists")), "How many? Points");
	EXPECT_EQ(Panel.Describe(TEXT("Shapes")), "Line(From(X Label) Between(0(X Label)) Width) Fixed(X Label) Fixed");
}

TEST(IPropertyRowGenerator, DoesNotRefreshForArraysThatNobodyCounted)
{
	FTestPanel Panel;
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	TSharedPtr<IPropertyHandle> Numbers;
	Panel.Module.RegisterCustomClassLayout("PanelObject",
		FTestClassLayout::Maker(
			[&](IDetailLayoutBuilder& Builder)
			{
				Numbers = Builder.GetProperty("Numbers");
				Numbers->MarkHiddenByCustomization();
			}));
	Panel.Show({&Object});
	Object.Numbers = {1};
	uint32 Num = 0;
	EXPECT_EQ(Numbers->GetNumChildren(Num), FPropertyAccess::Success);
	EXPECT_EQ(Num, 1u);
	// Nor for those that were counted later, for no row.
	Object.Numbers = {1, 2};
	EXPECT_FALSE(Panel.Generator->RefreshIfOutdated());
	Object.Points.SetNum(1);
	EXPECT_TRUE(Panel.Generator->RefreshIfOutdated());
}

TEST(IPropertyRowGenerator, RefreshesAfterAnUndoThatChangedAnArray)
{
	FTestPanel Panel;
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	Panel.Show({&Object});
	GEditor->BeginTransaction(FText::FromString(TEXT("Add")));
	Object.Modify();
	Object.Numbers = {1};
	GEditor->EndTransaction();
	EXPECT_TRUE(Panel.Generator->RefreshIfOutdated());
	GEditor->UndoTransaction();
	EXPECT_EQ(Panel.NumRefreshed, 2);
	EXPECT_TRUE(Panel.Generator->RefreshIfOutdated());
	EXPECT_EQ(Panel.Describe(TEXT("More lists")), "How many? Points");
}

TEST(IPropertyRowGenerator, RefreshesWhenObjectsHaveGone)
{
	FTestPanel Panel;
	UPanelObject& A = Panel.Make<UPanelObject>(TEXT("A"));
	UPanelChild& B = Panel.Make<UPanelChild>(TEXT("B"));
	Panel.Show({&A, &B});
	A.MarkPendingKill();
	EXPECT_TRUE(Panel.Generator->RefreshIfOutdated());
	EXPECT_EQ(OutersOf(Panel), TArray<UObject*>({&B}));
	EXPECT_TRUE(Panel.FindNode("Own/Own Count").IsValid());
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_TRUE(Panel.Generator->RefreshIfOutdated());
	EXPECT_EQ(Panel.Describe(), "");
	EXPECT_FALSE(Panel.Generator->RefreshIfOutdated());
}

TEST(IPropertyRowGenerator, KeepsLayoutsAsLongAsTheirRowsAndNoLonger)
{
	FTestPanel Panel;
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	Panel.Module.RegisterCustomClassLayout("PanelObject", FTestClassLayout::Maker([](IDetailLayoutBuilder&) {}));
	Panel.Module.RegisterCustomPropertyTypeLayout("PanelPoint", FTestTypeLayout::Maker(TEXT("point")));
	int32 NumSeen = 0;
	Panel.Generator->OnRowsRefreshed().AddLambda(
		[&]() { NumSeen = FTestClassLayout::NumAlive * 10 + FTestTypeLayout::NumAlive; });
	Panel.Show({&Object});
	EXPECT_EQ(NumSeen, 12);
	Panel.Show({&Object});
	EXPECT_EQ(NumSeen, 12);
	const TSharedPtr<IDetailTreeNode> Held = Panel.FindNode("Shapes");
	const TSharedPtr<IDetailTreeNode> HeldPoint = Panel.FindNode("Shapes/Fixed");
	const TSharedPtr<IDetailTreeNode> HeldCustom = Panel.FindNode("Shapes/Fixed/point");
	EXPECT_EQ(FTestPanel::TextOf(HeldCustom->CreateNodeWidgets().ValueWidget), "point's value");
	const TSharedPtr<IPropertyHandle> HeldHandle = Panel.Handle(TEXT("Count"));
	Object.Numbers = {1};
	EXPECT_TRUE(Panel.Generator->RefreshIfOutdated());
	EXPECT_EQ(NumSeen, 12);
	// Rows from before show nothing, whoever holds them.
	TArray<TSharedRef<IDetailTreeNode>> Children;
	Held->GetChildren(Children);
	HeldPoint->GetChildren(Children);
	EXPECT_EQ(Children.Num(), 0);
	EXPECT_EQ(FTestPanel::TextOf(HeldCustom->CreateNodeWidgets().NameWidget), "");
	EXPECT_EQ(FTestPanel::TextOf(HeldCustom->CreateNodeWidgets().ValueWidget), "");
	EXPECT_FALSE(HeldPoint->CreatePropertyHandle()->IsValidHandle());
	EXPECT_FALSE(HeldHandle->IsValidHandle());
	Panel.Generator = Panel.Module.CreatePropertyRowGenerator(FPropertyRowGeneratorArgs());
	EXPECT_EQ(FTestClassLayout::NumAlive + FTestTypeLayout::NumAlive, 0);
}

TEST(IPropertyRowGenerator, LeaksNothingOverTenThousandPanels)
{
	FTestPanel Panel;
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	Object.Points.SetNum(1);
	Panel.Module.RegisterCustomClassLayout("PanelObject",
		FTestClassLayout::Maker(
			[](IDetailLayoutBuilder& Builder)
			{
				FDetailWidgetRow& Row = Builder.EditCategory("Simple").AddGroup("G", FText()).AddWidgetRow();
				Row.ValueContent()[Builder.GetProperty("Text")->CreatePropertyValueWidget()];
			}));
	Panel.Module.RegisterCustomPropertyTypeLayout("PanelPoint", FTestTypeLayout::Maker(TEXT("point")));
	int64 NumLive = 0;
	int64 NumLiveAfterWarmUp = 0;
	std::weak_ptr<IPropertyHandle> LastHandle;
	for (int32 Round = 0; Round < 10000; ++Round)
	{
		Panel.Generator = Panel.Module.CreatePropertyRowGenerator(FPropertyRowGeneratorArgs());
		EXPECT_TRUE(LastHandle.expired());
		Panel.Show({&Object});
		LastHandle = Panel.Handle(TEXT("Points[0]")).GetInner();
		Panel.ValueWidget(TEXT("Ratio"));
#ifndef __SANITIZE_ADDRESS__
		// The address sanitizer looks for leaks by itself.
		NumLive = FAllocationCount::GetLive();
		NumLiveAfterWarmUp = Round <= 100 ? NumLive : NumLiveAfterWarmUp;
#endif
	}
	EXPECT_EQ(FTestClassLayout::NumAlive, 1);
	EXPECT_EQ(FTestTypeLayout::NumAlive, 3);
	EXPECT_EQ(NumLive, NumLiveAfterWarmUp);
}

TEST(IPropertyRowGenerator, RebuildsInAllPanelsWhenLayoutsHaveCome)
{
	FTestPanel Panel;
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	Panel.Show({&Object});
	const TSharedRef<IPropertyRowGenerator> Other =
		Panel.Module.CreatePropertyRowGenerator(FPropertyRowGeneratorArgs());
	int32 NumOther = 0;
	Other->OnRowsRefreshed().AddLambda([&]() { ++NumOther; });
	Panel.Module.CreatePropertyRowGenerator(FPropertyRowGeneratorArgs());
	Panel.Module.RegisterCustomPropertyTypeLayout("PanelPoint", FTestTypeLayout::Maker(TEXT("point")));
	EXPECT_FALSE(Panel.Generator->RefreshIfOutdated());
	Panel.Module.NotifyCustomizationModuleChanged();
	EXPECT_EQ(Panel.Describe(TEXT("Shapes")), "Line(From(point) Between Width) Fixed(point) Fixed");
	EXPECT_EQ(Panel.NumRefreshed, 2);
	EXPECT_EQ(NumOther, 1);
	EXPECT_FALSE(Panel.Generator->RefreshIfOutdated());
}

TEST(IPropertyRowGenerator, OutlivesItsModule)
{
	FTestPanel Panel;
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	TUniquePtr<FPropertyEditorModule> Module(new FPropertyEditorModule());
	Module->RegisterCustomPropertyTypeLayout("PanelPoint", FTestTypeLayout::Maker(TEXT("point")));
	Panel.Generator = Module->CreatePropertyRowGenerator(FPropertyRowGeneratorArgs());
	Module.Reset();
	Panel.Show({&Object});
	EXPECT_TRUE(Panel.FindNode("Shapes/Fixed/point").IsValid());
}

TEST(IPropertyRowGenerator, NeverDropsALayoutDuringItsOwnCall)
{
	FTestPanel Panel;
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	Panel.Module.RegisterCustomClassLayout("PanelObject", FTestClassLayout::Maker([](IDetailLayoutBuilder&) {}));
	Panel.Show({&Object});
	// From a callback of which nobody knows: the former rows and handles live on until the panel is asked to refresh.
	const TSharedRef<IPropertyHandle> Former = Panel.Handle(TEXT("Count"));
	Panel.Module.NotifyCustomizationModuleChanged();
	EXPECT_EQ(FTestClassLayout::NumAlive, 2);
	EXPECT_EQ(Former->SetValue(9), FPropertyAccess::Success);
	EXPECT_FALSE(Panel.Generator->RefreshIfOutdated());
	EXPECT_EQ(FTestClassLayout::NumAlive, 1);
	EXPECT_FALSE(Former->IsValidHandle());
	// From a write: whoever writes may be a layout.
	int32 NumAlive = 0;
	UPanelObject::OnHeard = [&](UPanelObject&)
	{
		Panel.Show({&Object});
		Panel.Generator->RefreshIfOutdated();
		NumAlive = FTestClassLayout::NumAlive;
	};
	EXPECT_EQ(Panel.Handle(TEXT("Count"))->SetValue(10), FPropertyAccess::Success);
	EXPECT_EQ(Object.Count, 10);
	UPanelObject::OnHeard = nullptr;
	EXPECT_EQ(NumAlive, 2);
	Panel.Generator->RefreshIfOutdated();
	EXPECT_EQ(FTestClassLayout::NumAlive, 1);
}

TEST(IPropertyRowGenerator, PutsOffARebuildThatIsAskedForWhileItBuilds)
{
	FTestPanel Panel;
	UPanelObject& A = Panel.Make<UPanelObject>(TEXT("A"));
	UPanelObject& B = Panel.Make<UPanelObject>(TEXT("B"));
	int32 NumCalls = 0;
	Panel.Module.RegisterCustomClassLayout("PanelObject",
		FTestClassLayout::Maker(
			[&](IDetailLayoutBuilder& Builder)
			{
				if (NumCalls++ == 0)
				{
					Panel.Module.NotifyCustomizationModuleChanged();
					Panel.Show({&B});
					EXPECT_FALSE(Panel.Generator->RefreshIfOutdated());
				}
				EXPECT_TRUE(Builder.GetProperty("Count")->IsValidHandle());
			}));
	Panel.Show({&A});
	EXPECT_EQ(NumCalls, 1);
	EXPECT_EQ(Panel.NumRefreshed, 1);
	EXPECT_EQ(OutersOf(Panel), TArray<UObject*>({&A}));
	EXPECT_TRUE(Panel.Generator->RefreshIfOutdated());
	EXPECT_EQ(NumCalls, 2);
	EXPECT_EQ(OutersOf(Panel), TArray<UObject*>({&B}));
	EXPECT_FALSE(Panel.Generator->RefreshIfOutdated());
}

TEST(IPropertyRowGenerator, MayBeLetGoOfByWhoeverHearsOfItsRows)
{
	FTestPanel Panel;
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	TSharedPtr<IPropertyRowGenerator> Mine = Panel.Module.CreatePropertyRowGenerator(FPropertyRowGeneratorArgs());
	const std::weak_ptr<IPropertyRowGenerator> Weak = Mine.GetInner();
	Mine->OnRowsRefreshed().AddLambda([&]() { Mine.Reset(); });
	Mine->SetObjects({&Object});
	EXPECT_TRUE(Weak.expired());
	// And in the middle of a write.
	Panel.Show({&Object});
	const TSharedRef<IPropertyHandle> Handle = Panel.Handle(TEXT("Count"));
	UPanelObject::OnHeard = [&](UPanelObject&)
	{ Panel.Generator = Panel.Module.CreatePropertyRowGenerator(FPropertyRowGeneratorArgs()); };
	EXPECT_EQ(Handle->SetValue(5), FPropertyAccess::Success);
	UPanelObject::OnHeard = nullptr;
	EXPECT_EQ(Object.Count, 5);
	EXPECT_FALSE(Handle->IsValidHandle());
}
