// Copyright Corvane. MIT License.
#include "WindowFixture.h"

#include <QtTest/QTest>
#include <limits>

#include "Editor.h"
#include "Engine/Level.h"
#include "Engine/Selection.h"
#include "Engine/TextureRenderTarget2D.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "IPlacementModeModule.h"
#include "LevelEditorViewport.h"
#include "Panels/PlaceActors.h"
#include "TestEditor.h"
#include "UObject/Class.h"
#include "WindowText.h"

namespace
{
	class FPlaceActorsTest : public FWindowFixture
	{
	protected:
		FPlaceActorsTest()
		{
			ShowPanel(Panel, 340, 260);
			Frame(Panel);
		}

		QListWidget& GetList(const char* Name)
		{
			for (QListWidget* List : Panel.findChildren<QListWidget*>())
			{
				if (List->accessibleName() == QLatin1String(Name))
				{
					return *List;
				}
			}
			throw std::runtime_error("no such list");
		}
		QListWidget& GetCategories() { return GetList("Categories"); }
		QListWidget& GetItems() { return GetList("Classes"); }
		QLineEdit& GetSearch() { return *Panel.findChild<QLineEdit*>(); }
		static QStringList GetTexts(const QListWidget& List)
		{
			QStringList Texts;
			for (int Row = 0; Row < List.count(); ++Row)
			{
				Texts.append(List.item(Row)->text());
			}
			return Texts;
		}
		QString GetNote()
		{
			const auto* Note = GetItems().viewport()->findChild<QLabel*>();
			return Note->isVisible() ? Note->text() : QString();
		}
		void Choose(const char* Category)
		{
			GetCategories().setCurrentItem(
				GetCategories().findItems(QString::fromUtf8(Category), Qt::MatchExactly).value(0));
		}
		void DoubleClick(const char* Item)
		{
			const QListWidgetItem* Found = GetItems().findItems(QString::fromUtf8(Item), Qt::MatchExactly).value(0);
			ASSERT_NE(Found, nullptr);
			const QPoint At = GetItems().visualItemRect(Found).center();
			QTest::mouseClick(GetItems().viewport(), Qt::LeftButton, Qt::NoModifier, At);
			QTest::mouseDClick(GetItems().viewport(), Qt::LeftButton, Qt::NoModifier, At);
		}
		/** A frame after the time at which categories are read anew. */
		void Later()
		{
			Advance(0.3);
			Frame(Panel);
		}
		static FPlacementCategoryInfo MakeCategory(const char* Name, int32 Order)
		{
			return FPlacementCategoryInfo(FText::FromString(FString(Name)), FName(Name), TEXT("Tag"), Order, false);
		}
		static void Register(const char* Category, const FAssetData& Asset)
		{
			IPlacementModeModule::Get().RegisterPlaceableItem(
				Category, MakeShared<FPlaceableItem>(static_cast<UActorFactory*>(nullptr), Asset));
		}
		TArray<AActor*> GetActors() { return FTestEditor::GetActors(*Editor.GetWorld(0)); }

		FPlaceActors Panel{Context};
	};

	constexpr float NoNumber = std::numeric_limits<float>::quiet_NaN();
}

TEST_F(FPlaceActorsTest, ListsCategoriesInTheirOrder)
{
	EXPECT_EQ(GetTexts(GetCategories()),
		(QStringList{QStringLiteral("Basic"), QStringLiteral("Corvane"), QStringLiteral("All Classes")}));
	EXPECT_EQ(GetCategories().currentRow(), 0);
	EXPECT_EQ(GetTexts(GetItems()), QStringList{QStringLiteral("Actor")});
}

TEST_F(FPlaceActorsTest, ShowsTheChosenCategorysItemsWithIcons)
{
	Choose("Corvane");
	EXPECT_EQ(GetTexts(GetItems()),
		(QStringList{QStringLiteral("ZAV Cine Cam Capture"), QStringLiteral("ZAV Spout Receiver Manager"),
			QStringLiteral("ZAV Spout Sender Manager")}));
	EXPECT_FALSE(GetItems().item(0)->icon().isNull());
	Frame(Panel);
	Grab(Panel, "place-actors");
	Panel.resize(220, 200);
	Frame(Panel);
	Grab(Panel, "place-actors-narrow");
	Choose("All Classes");
	EXPECT_GE(GetItems().count(), 4);
}

TEST_F(FPlaceActorsTest, PlacesByDoubleClick)
{
	Editor.GetLevelClient().SetViewLocation(FVector(0.0f, 50.0f, 100.0f));
	Choose("Corvane");
	DoubleClick("ZAV Spout Sender Manager");
	const TArray<AActor*> Actors = GetActors();
	ASSERT_EQ(Actors.Num(), 1);
	EXPECT_EQ(Actors[0]->GetClass()->GetName(), FString("ZAVSpoutSenderManager"));
	EXPECT_EQ(Actors[0]->GetActorLocation(), FVector(300.0f, 50.0f, 100.0f));
	EXPECT_EQ(GEditor->GetSelectedActors()->GetSelectedObject(0), Actors[0]);
	EXPECT_EQ(LastSaid, QStringLiteral("Placed %1").arg(FWindowText::ToQt(Actors[0]->GetName())));
	// One step.
	GEditor->UndoTransaction();
	EXPECT_EQ(GetActors().Num(), 0);
}

TEST_F(FPlaceActorsTest, PlacesByKeyboard)
{
	GetCategories().setFocus();
	QTest::keyClick(&GetCategories(), Qt::Key_Down);
	EXPECT_EQ(GetItems().count(), 3);
	QTest::keyClick(&GetCategories(), Qt::Key_Tab);
	EXPECT_TRUE(GetItems().hasFocus());
	QTest::keyClick(&GetItems(), Qt::Key_Down);
	QTest::keyClick(&GetItems(), Qt::Key_Return);
	ASSERT_EQ(GetActors().Num(), 1);
	EXPECT_TRUE(LastSaid.startsWith(QStringLiteral("Placed ")));
}

TEST_F(FPlaceActorsTest, PlacesOnTheGroundWhereTheViewMeetsItNearby)
{
	const FVector Eye(10.0f, 0.0f, 100.0f);
	const auto Expect = [](const FVector& Place, float X, float Y, float Z)
	{
		EXPECT_NEAR(Place.X, X, 0.01f);
		EXPECT_NEAR(Place.Y, Y, 0.01f);
		EXPECT_NEAR(Place.Z, Z, 0.01f);
	};
	Expect(FPlaceActors::FindPlace(Eye, FRotator(-45.0f, 0.0f, 0.0f)), 110.0f, 0.0f, 0.0f);
	Expect(FPlaceActors::FindPlace(Eye, FRotator(-45.0f, 90.0f, 0.0f)), 10.0f, 100.0f, 0.0f);
	Expect(FPlaceActors::FindPlace(Eye, FRotator(-90.0f, 0.0f, 0.0f)), 10.0f, 0.0f, 0.0f);
	// From below as well.
	Expect(FPlaceActors::FindPlace(FVector(0.0f, 0.0f, -100.0f), FRotator(45.0f, 0.0f, 0.0f)), 100.0f, 0.0f, 0.0f);
	// Just within ten metres, and just beyond.
	EXPECT_EQ(FPlaceActors::FindPlace(FVector(0.0f, 0.0f, 999.0f), FRotator(-90.0f, 0.0f, 0.0f)).Z, 0.0f);
	Expect(FPlaceActors::FindPlace(FVector(0.0f, 0.0f, 1001.0f), FRotator(-90.0f, 0.0f, 0.0f)), 0.0f, 0.0f, 701.0f);
	// Away from the ground, along it, and in it.
	Expect(FPlaceActors::FindPlace(Eye, FRotator(45.0f, 0.0f, 0.0f)), 222.132f, 0.0f, 312.132f);
	Expect(FPlaceActors::FindPlace(Eye, FRotator()), 310.0f, 0.0f, 100.0f);
	Expect(FPlaceActors::FindPlace(FVector(), FRotator()), 300.0f, 0.0f, 0.0f);
	EXPECT_EQ(FPlaceActors::FindPlace(FVector(NoNumber, 0.0f, 0.0f), FRotator()), FVector());
	EXPECT_EQ(FPlaceActors::FindPlace(FVector(), FRotator(0.0f, NoNumber, 0.0f)), FVector());
}

TEST_F(FPlaceActorsTest, PlacesAtZeroWhatHasNoPlaceAndWithoutAView)
{
	Editor.GetLevelClient().SetViewLocation(FVector(0.0f, 50.0f, 100.0f));
	DoubleClick("Actor");
	ASSERT_EQ(GetActors().Num(), 1);
	EXPECT_EQ(GetActors()[0]->GetActorLocation(), FVector());
	Editor.GetViewports().Open({Editor.GetWorld(1)}, 0);
	Editor.GetLevelClient().SetViewLocation(FVector(0.0f, 50.0f, 100.0f));
	Choose("Corvane");
	DoubleClick("ZAV Cine Cam Capture");
	ASSERT_EQ(GetActors().Num(), 2);
	EXPECT_EQ(GetActors()[1]->GetActorLocation(), FVector());
}

TEST_F(FPlaceActorsTest, SearchesThroughAllCategories)
{
	GetSearch().setFocus();
	QTest::keyClicks(&GetSearch(), QStringLiteral("spout MANAGER"));
	// Each once, though they are among all classes as well.
	EXPECT_EQ(GetTexts(GetItems()),
		(QStringList{QStringLiteral("ZAV Spout Receiver Manager"), QStringLiteral("ZAV Spout Sender Manager")}));
	EXPECT_FALSE(GetCategories().isEnabled());
	Frame(Panel);
	Grab(Panel, "place-actors-search");
	QTest::keyClick(&GetSearch(), Qt::Key_Return);
	EXPECT_EQ(GetActors().Num(), 0);
	QTest::keyClicks(&GetSearch(), QStringLiteral(" x"));
	EXPECT_EQ(GetNote(), QStringLiteral("No matching classes"));
	QTest::keyClick(&GetSearch(), Qt::Key_Escape);
	EXPECT_TRUE(GetCategories().isEnabled());
	EXPECT_EQ(GetTexts(GetItems()), QStringList{QStringLiteral("Actor")});
	QTest::keyClicks(&GetSearch(), QStringLiteral("cine"));
	QTest::keyClick(&GetSearch(), Qt::Key_Return);
	EXPECT_EQ(GetActors().Num(), 1);
}

TEST_F(FPlaceActorsTest, FollowsCategoriesThatComeAndGo)
{
	Choose("Corvane");
	IPlacementModeModule::Get().RegisterPlacementCategory(MakeCategory("Mine & Yours", -5));
	Register("Mine & Yours", FAssetData(AActor::StaticClass()));
	Later();
	EXPECT_EQ(GetTexts(GetCategories()).first(), QStringLiteral("Mine & Yours"));
	// What was chosen stays chosen.
	EXPECT_EQ(GetCategories().currentItem()->text(), QStringLiteral("Corvane"));
	EXPECT_EQ(GetItems().count(), 3);
	Choose("Mine & Yours");
	EXPECT_EQ(GetTexts(GetItems()), QStringList{QStringLiteral("Actor")});
	Register("Mine & Yours", FAssetData(AActor::StaticClass()));
	Later();
	EXPECT_EQ(GetItems().count(), 2);
	IPlacementModeModule::Get().UnregisterPlacementCategory("Mine & Yours");
	Later();
	EXPECT_EQ(GetCategories().count(), 3);
	EXPECT_EQ(GetCategories().currentRow(), 0);
}

TEST_F(FPlaceActorsTest, KeepsItsItemsWhileNothingChanges)
{
	Choose("Corvane");
	GetItems().setCurrentRow(1);
	const QListWidgetItem* Item = GetItems().item(1);
	Later();
	EXPECT_EQ(GetItems().item(1), Item);
	Register("Corvane", FAssetData(AActor::StaticClass()));
	Later();
	EXPECT_EQ(GetItems().count(), 4);
	EXPECT_EQ(GetItems().currentItem()->text(), QStringLiteral("ZAV Spout Receiver Manager"));
}

TEST_F(FPlaceActorsTest, ShowsOnlyTheNameOfACategoryWithItsOwnContent)
{
	FPlacementCategoryInfo Own = MakeCategory("Own", -5);
	Own.CustomGenerator = []() -> TSharedRef<SWidget> { throw std::runtime_error("made"); };
	IPlacementModeModule::Get().RegisterPlacementCategory(Own);
	Register("Own", FAssetData(AActor::StaticClass()));
	IPlacementModeModule::Get().RegisterPlacementCategory(MakeCategory("Empty", -4));
	Later();
	Choose("Own");
	EXPECT_EQ(GetItems().count(), 0);
	EXPECT_EQ(GetNote(), QStringLiteral("Own"));
	Choose("Empty");
	EXPECT_EQ(GetNote(), QStringLiteral("This category is empty"));
	Choose("Corvane");
	EXPECT_EQ(GetNote(), QString());
}

TEST_F(FPlaceActorsTest, IsEmptyWithoutTheModuleAndNeverLoadsIt)
{
	FModuleManager::Get().UnloadModule("PlacementMode");
	Frame(Panel);
	EXPECT_EQ(GetCategories().count(), 0);
	EXPECT_EQ(GetItems().count(), 0);
	EXPECT_TRUE(GetNote().startsWith(QStringLiteral("Nothing can be placed")));
	Grab(Panel, "place-actors-empty");
	GetSearch().setText(QStringLiteral("a"));
	Later();
	EXPECT_FALSE(FModuleManager::Get().IsModuleLoaded("PlacementMode"));
	GetSearch().clear();
	FModuleManager::Get().LoadModule("PlacementMode");
	Frame(Panel);
	EXPECT_EQ(GetTexts(GetCategories()), (QStringList{QStringLiteral("Basic"), QStringLiteral("All Classes")}));
}

TEST_F(FPlaceActorsTest, RefusesAnItemWhoseClassHasGone)
{
	FAssetData Gone(AActor::StaticClass());
	Gone.AssetName = FName("GoneForGood");
	Register("Corvane", Gone);
	// What stands for no class of actors can't be placed either.
	Register("Corvane", FAssetData(UTextureRenderTarget2D::StaticClass()));
	Later();
	Choose("Corvane");
	DoubleClick("GoneForGood");
	EXPECT_EQ(LastSaid, QStringLiteral("GoneForGood can't be placed: there is no such class of actors any more"));
	DoubleClick("Texture Render Target 2D");
	EXPECT_TRUE(LastSaid.startsWith(QStringLiteral("Texture Render Target 2D can't be placed")));
	EXPECT_EQ(GetActors().Num(), 0);
}
