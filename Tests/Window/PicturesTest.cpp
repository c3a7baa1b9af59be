// Copyright Corvane. MIT License.
#include "QtHeaders.h"

#include <QtTest/QTest>

#include "MainWindowFixture.h"
#include "Panels/DetailsLine.h"
#include "Panels/DetailsList.h"
#include "Panels/DetailsView.h"
#include "Panels/LevelToolBarView.h"
#include "Panels/NotificationFrame.h"
#include "Panels/NotificationStack.h"
#include "SlateHost.h"

#include "ActorEdits.h"
#include "AuthDelegates.h"
#include "Editor.h"
#include "EditorViews.h"
#include "Engine/World.h"
#include "Kismet/GameplayStatics.h"
#include "LevelFile.h"
#include "ZAVSpoutNames.h"
#include "GameFramework/Actor.h"

namespace
{
	const char* const Wizard = "CineStreamWizard";
	constexpr int LargestDifference = 16;
	constexpr double MostDifferentPixels = 0.001;
	constexpr int MostPictures = 12;
	constexpr qint64 MostBytes = 1'000'000;

	QDir GetFolder()
	{
		return QDir(QStringLiteral(QUILLON_PICTURES_DIR));
	}

	bool Differs(QRgb One, QRgb Other)
	{
		return std::abs(qRed(One) - qRed(Other)) > LargestDifference ||
			std::abs(qGreen(One) - qGreen(Other)) > LargestDifference ||
			std::abs(qBlue(One) - qBlue(Other)) > LargestDifference;
	}

	/** The part of all pixels that differ so that it can be seen; 1 for pictures of different sizes. */
	double Compare(const QImage& One, const QImage& Other)
	{
		if (One.size() != Other.size())
		{
			return 1.0;
		}
		qint64 Different = 0;
		for (int Y = 0; Y < One.height(); ++Y)
		{
			for (int X = 0; X < One.width(); ++X)
			{
				Different += Differs(One.pixel(X, Y), Other.pixel(X, Y)) ? 1 : 0;
			}
		}
		return static_cast<double>(Different) / (static_cast<double>(One.width()) * One.height());
	}

	/**
	 * What the manual shows, and what must not change unnoticed. With QUILLON_MAKE_PICTURES set they are made anew
	 * (Tools/make-pictures).
	 */
	class FPictures : public FMainWindowFixture
	{
	protected:
		FPictures() : FMainWindowFixture(EEditorViewUse::Person) {}
		~FPictures() override { ZAVSpoutNames::SetActiveSenderNames({}); }

		static void Check(const QPixmap& Picture, const char* Name)
		{
			const QString File = GetFolder().filePath(QString::fromLatin1(Name) + QStringLiteral(".png"));
			const QImage Image = Picture.toImage().convertToFormat(QImage::Format_RGB32);
			if (qEnvironmentVariableIsSet("QUILLON_MAKE_PICTURES"))
			{
				// A picture that has not changed visibly keeps its bytes.
				ASSERT_TRUE(Compare(Image, QImage(File)) <= MostDifferentPixels || Image.save(File));
				return;
			}
			EXPECT_LE(Compare(Image, QImage(File)), MostDifferentPixels)
				<< Name << " looks different; if that is meant, make it anew with Tools/make-pictures and look at it";
		}

		void OpenLevel(const char* File)
		{
			std::string Error;
			ASSERT_TRUE(FLevelFile::Open(std::string(QUILLON_SAMPLES_DIR) + "/" + File, Error)) << Error;
			Frame();
		}
		void Select(const TCHAR* Name)
		{
			TArray<AActor*> Actors;
			UGameplayStatics::GetAllActorsOfClass(FEditorViews::GetLevelWorld(), AActor::StaticClass(), Actors);
			for (AActor* Actor : Actors)
			{
				if (Actor->GetName() == Name)
				{
					FActorEdits::SelectOnly({Actor});
				}
			}
			ShowDetails();
		}
		void ShowDetails()
		{
			Editor.GetDetails().GetCategories();
			GetWindow().PrepareScreenshot(QStringLiteral("Details"));
			Frame();
			GetWindow().GetDetails().ShowNow();
			Frame();
		}
		void OpenLine(const QString& Name)
		{
			QWidget* Line = GetWindow().GetDetails().GetList().FindLine(Name);
			ASSERT_NE(Line, nullptr) << Name.toStdString();
			Line->setFocus();
			Press(Qt::Key_Right);
		}
		/** The dock alone, floating in that size. */
		QPixmap GrabDock(const char* Name, int Width, int Height)
		{
			QDockWidget& Dock = *GetWindow().FindDock(QString::fromLatin1(Name));
			Dock.setFloating(true);
			Dock.resize(Width, Height);
			Frame();
			Frame();
			return Dock.widget()->grab();
		}
		void TypeName(const QString& Name)
		{
			OpenWizard();
			Click(FindInTab(Wizard, TEXT("SEditableTextBox")));
			Type(Name);
		}
		void PressButton()
		{
			Click(FindInTab(Wizard, TEXT("SButton")));
			GetWindow().setFocus();
			Frame();
		}
		void Announce(const TCHAR* Version)
		{
			AuthDelegates::OnUpgradeAvailable.Broadcast(
				Version, FString(TEXT("https://corvane.example/download/Release_")) + Version + TEXT(".zip"));
			Frame();
			Frame();
		}
		/** The lower right of the window. */
		QPixmap GrabCorner(int Width, int Height)
		{
			const QRect Corner(GetWindow().width() - Width, GetWindow().height() - Height, Width, Height);
			return GetWindow().grab(Corner);
		}
	};
}

TEST_F(FPictures, OfTheWholeWindow)
{
	OpenLevel("studio.json");
	TypeName(QStringLiteral("Main"));
	PressButton();
	ShowDetails();
	GetWindow().GetDetails().setFocus();
	Frame();
	Check(GetWindow().grab(), "window");
}

TEST_F(FPictures, OfTheToolbarsMenu)
{
	QToolButton* Button = GetWindow().GetToolBar().FindButton(QStringLiteral("Corvane"));
	ASSERT_NE(Button, nullptr);
	Click(*Button);
	QMenu* Menu = GetWindow().GetToolBar().GetMenu();
	ASSERT_NE(Menu, nullptr);
	// A menu is a window of its own.
	QPixmap Picture = GetWindow().grab(QRect(0, 0, 700, 520));
	QPainter Painter(&Picture);
	Painter.drawPixmap(GetWindow().mapFromGlobal(Menu->pos()), Menu->grab());
	Painter.end();
	Check(Picture, "menu");
}

TEST_F(FPictures, OfTheFreshWizard)
{
	OpenWizard();
	Check(GrabDock(Wizard, 420, 560), "wizard-fresh");
}

TEST_F(FPictures, OfTheWizardsWarning)
{
	OpenLevel("studio.json");
	TypeName(QStringLiteral("Stage Left"));
	Check(GrabDock(Wizard, 420, 560), "wizard-warned");
}

TEST_F(FPictures, OfTheWizardThatIsDone)
{
	TypeName(QStringLiteral("Main"));
	PressButton();
	Check(GrabDock(Wizard, 420, 560), "wizard-done");
}

TEST_F(FPictures, OfTheWizardThatHasFailed)
{
	TypeName(QStringLiteral("Main/"));
	PressButton();
	Check(GrabDock(Wizard, 420, 560), "wizard-failed");
}

TEST_F(FPictures, OfThePlacementPanel)
{
	const QDockWidget& Dock = *GetWindow().FindDock(QStringLiteral("Place Actors"));
	for (QListWidget* List : Dock.findChildren<QListWidget*>())
	{
		for (QListWidgetItem* Item : List->findItems(QStringLiteral("Corvane"), Qt::MatchExactly))
		{
			List->setCurrentItem(Item);
			List->setFocus();
		}
	}
	Frame();
	Check(GrabDock("Place Actors", 380, 220), "place-actors");
}

TEST_F(FPictures, OfAReceiverThatHasLostItsSender)
{
	ZAVSpoutNames::SetActiveSenderNames({TEXT("A"), TEXT("B")});
	OpenLevel("receivers.json");
	Select(TEXT("Monitors"));
	OpenLine(QStringLiteral("Spout Receivers"));
	OpenLine(QStringLiteral("0"));
	OpenLine(QStringLiteral("1"));
	Check(GrabDock("Details", 460, 420), "lost-sender");
}

TEST_F(FPictures, OfTheShowFlags)
{
	Place(TEXT("ZAVCineCamCapture"));
	ShowDetails();
	OpenLine(QStringLiteral("Advanced"));
	OpenLine(QStringLiteral("Post Processing Show Flags"));
	Check(GrabDock("Details", 460, 640), "show-flags");
}

TEST_F(FPictures, OfOneNotification)
{
	Announce(TEXT("2.1"));
	Check(GrabCorner(480, 260), "notification");
}

TEST_F(FPictures, OfThreeNotifications)
{
	Announce(TEXT("2.1"));
	Announce(TEXT("2.2"));
	Announce(TEXT("3.0"));
	Check(GrabCorner(480, 560), "notifications");
}

TEST(FPictureFiles, AreFewAndSmall)
{
	const QFileInfoList Files = GetFolder().entryInfoList({QStringLiteral("*.png")}, QDir::Files);
	EXPECT_GT(Files.size(), 0);
	EXPECT_LE(Files.size(), MostPictures);
	qint64 Bytes = 0;
	for (const QFileInfo& File : Files)
	{
		Bytes += File.size();
	}
	EXPECT_LE(Bytes, MostBytes);
}
