// Copyright Corvane. MIT License.
#include "DetailsViewFixture.h"

#include "ActorEdits.h"
#include "Editor.h"
#include "Engine/TextureRenderTarget2D.h"
#include "Panels/DetailsReset.h"
#include "IPropertyRowGenerator.h"
#include "Modules/ModuleManager.h"
#include "Panels/DetailsTree.h"
#include "PropertyEditorModule.h"
#include "PropertyHandle.h"
#include "UObject/Package.h"

#include "ZAVSaveGame.h"
#include "ZAVSpoutReceiverManager.h"

class FDetailsResetTest : public FWindowFixture
{
protected:
	AEveryPropertyActor& SelectOne()
	{
		AEveryPropertyActor* Actor = Editor.GetWorld(0)->SpawnActor<AEveryPropertyActor>();
		Actors.push_back(Actor);
		FActorEdits::SelectOnly(Actors);
		return *Actor;
	}
	TSharedPtr<IPropertyHandle> Find(const char* Path)
	{
		for (const FDetailsPanel::FCategory& Category : Editor.GetDetails().GetCategories())
		{
			for (const FDetailsRow& Row : Category.Rows)
			{
				if (Row.Path == FString(Path) && Row.Value.IsValid())
				{
					return Row.Value;
				}
			}
		}
		ADD_FAILURE() << "no row " << Path;
		return nullptr;
	}
	bool CanReset(const char* Path) { return FDetailsReset::CanReset(*Find(Path)); }
	bool Reset(const char* Path) { return FDetailsReset::Reset(*Find(Path)); }

	std::vector<AActor*> Actors;
};

TEST_F(FDetailsResetTest, DoesNothingToDefaultValues)
{
	SelectOne();
	for (const char* Path : {"bFlag", "Number", "Fraction", "Text", "Label", "Texture", "Translated", "Inner.Count",
			 "Inner.Offset.X", "Inner.Target", "Strength"})
	{
		EXPECT_FALSE(CanReset(Path)) << Path;
		EXPECT_FALSE(Reset(Path)) << Path;
	}
	EXPECT_FALSE(GEditor->Trans->CanUndo());
}

TEST_F(FDetailsResetTest, SetsValuesOfEveryKind)
{
	AEveryPropertyActor& Actor = SelectOne();
	Actor.bFlag = false;
	Actor.Number = 5;
	Actor.Fraction = 1.5f;
	Actor.Text = TEXT("Text");
	Actor.Label = TEXT("Label");
	Actor.Translated = FText::FromString(TEXT("Translated"));
	Actor.Texture = NewObject<UTextureRenderTarget2D>(GetTransientPackage());
	Actor.Inner.Count = 8;
	Actor.Inner.Offset.Y = 2.0f;
	Actor.Component->Strength = 4.0f;
	for (const char* Path : {"bFlag", "Number", "Fraction", "Text", "Label", "Translated", "Texture", "Inner.Count",
			 "Inner.Offset.Y", "Strength"})
	{
		EXPECT_TRUE(CanReset(Path)) << Path;
		EXPECT_TRUE(Reset(Path)) << Path;
		EXPECT_FALSE(CanReset(Path)) << Path;
	}
	EXPECT_TRUE(Actor.bFlag);
	EXPECT_EQ(Actor.Number, 3);
	EXPECT_EQ(Actor.Fraction, 0.25f);
	EXPECT_TRUE(Actor.Text.IsEmpty());
	EXPECT_TRUE(Actor.Label.IsNone());
	EXPECT_TRUE(Actor.Translated.IsEmpty());
	EXPECT_EQ(Actor.Texture, nullptr);
	EXPECT_EQ(Actor.Inner.Count, 7);
	EXPECT_EQ(Actor.Inner.Offset.Y, 0.0f);
	EXPECT_EQ(Actor.Component->Strength, 0.5f);
}

TEST_F(FDetailsResetTest, ComparesAnElementThatTheDefaultLacksWithANewOne)
{
	AEveryPropertyActor& Actor = SelectOne();
	Actor.Numbers.Add(0);
	Actor.Numbers.Add(6);
	Actor.Structs.AddDefaulted_GetRef().Label = TEXT("Label");
	EXPECT_FALSE(CanReset("Numbers[0]"));
	EXPECT_TRUE(CanReset("Numbers[1]"));
	EXPECT_TRUE(CanReset("Structs[0].Label"));
	EXPECT_FALSE(CanReset("Structs[0].Count"));
	EXPECT_TRUE(Reset("Numbers[1]"));
	EXPECT_TRUE(Reset("Structs[0].Label"));
	EXPECT_EQ(Actor.Numbers[1], 0);
	EXPECT_TRUE(Actor.Structs[0].Label.IsEmpty());
}

TEST_F(FDetailsResetTest, ComparesAnElementThatTheDefaultHasWithThat)
{
	// The class's own manager has one receiver.
	AZAVSpoutReceiverManager* Manager = Editor.GetWorld(0)->SpawnActor<AZAVSpoutReceiverManager>();
	FActorEdits::SelectOnly({Manager});
	EXPECT_FALSE(CanReset("SpoutReceivers[0].Active"));
	Manager->SpoutReceivers[0].Active = false;
	EXPECT_TRUE(CanReset("SpoutReceivers[0].Active"));
	GetMutableDefault<AZAVSpoutReceiverManager>()->SpoutReceivers[0].Active = false;
	EXPECT_FALSE(CanReset("SpoutReceivers[0].Active"));
	GetMutableDefault<AZAVSpoutReceiverManager>()->SpoutReceivers[0].Active = true;
}

TEST_F(FDetailsResetTest, OffersNothingForStructuresAndArrays)
{
	AEveryPropertyActor& Actor = SelectOne();
	Actor.Inner.Count = 8;
	Actor.Numbers.Add(1);
	for (const char* Path : {"Inner", "Numbers"})
	{
		EXPECT_FALSE(CanReset(Path)) << Path;
		EXPECT_FALSE(Reset(Path)) << Path;
	}
}

TEST_F(FDetailsResetTest, ResetsAllActorsIfOneDiffers)
{
	AEveryPropertyActor& First = SelectOne();
	AEveryPropertyActor& Second = SelectOne();
	Second.Number = 8;
	EXPECT_TRUE(CanReset("Number"));
	EXPECT_TRUE(Reset("Number"));
	EXPECT_EQ(First.Number, 3);
	EXPECT_EQ(Second.Number, 3);
	GEditor->UndoTransaction();
	EXPECT_EQ(Second.Number, 8);
}

TEST_F(FDetailsResetTest, KnowsNoDefaultForAHandleWhoseRowsAreGone)
{
	SelectOne().Number = 8;
	const TSharedPtr<IPropertyHandle> Handle = Find("Number");
	Editor.GetDetails().Close();
	EXPECT_FALSE(FDetailsReset::CanReset(*Handle));
	EXPECT_FALSE(FDetailsReset::Reset(*Handle));
}

TEST_F(FDetailsResetTest, OffersNothingForWhatIsReadOnly)
{
	UZAVSaveGame* Save = NewObject<UZAVSaveGame>(GetTransientPackage());
	const TSharedRef<IPropertyRowGenerator> Generator =
		FModuleManager::LoadModuleChecked<FPropertyEditorModule>("PropertyEditor")
			.CreatePropertyRowGenerator(FPropertyRowGeneratorArgs());
	Generator->SetObjects({Save});
	TArray<TSharedRef<IDetailTreeNode>> Nodes;
	Generator->GetRootTreeNodes()[0]->GetChildren(Nodes);
	FDetailsPanel::FCategory Category;
	for (const TSharedRef<IDetailTreeNode>& Node : Nodes)
	{
		Category.Rows.emplace_back(Node);
		const TSharedPtr<IPropertyHandle> Handle = Node->CreatePropertyHandle();
		Handle->SetValueFromFormattedString(TEXT("True"));
		Handle->SetValueFromFormattedString(TEXT("7"));
		EXPECT_FALSE(FDetailsReset::CanReset(*Handle));
	}
	FDetailsTree Tree;
	Tree.Read({Category}, QStringLiteral("Save"));
	ASSERT_GT(Tree.GetItems().size(), 1u);
	EXPECT_TRUE(Tree.GetItems()[1].bReadOnly);
}

TEST_F(FDetailsResetTest, OffersNoPartOfATemplate)
{
	AEveryPropertyActor& Actor = SelectOne();
	AEveryPropertyActor* Default = GetMutableDefault<AEveryPropertyActor>();
	Default->Texture = GetMutableDefault<UTextureRenderTarget2D>();
	EXPECT_FALSE(CanReset("Texture"));
	Default->Texture = NewObject<UTextureRenderTarget2D>(GetTransientPackage());
	EXPECT_TRUE(CanReset("Texture"));
	EXPECT_TRUE(Reset("Texture"));
	EXPECT_EQ(Actor.Texture, Default->Texture);
	Default->Texture = nullptr;
}
