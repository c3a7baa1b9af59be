// Copyright Corvane. MIT License.
#include "QtHeaders.h"

#include <QtTest/QTest>

#include "AuthDelegates.h"
#include "DeveloperMenu.h"
#include "Engine/World.h"
#include "ReleaseDialog.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "WindowFixture.h"
#include "WindowText.h"

namespace
{
	class FDeveloperMenuTest : public FWindowFixture
	{
	protected:
		FDeveloperMenuTest() : Menu(Context)
		{
			Handle = AuthDelegates::OnUpgradeAvailable.AddLambda([this](FString Version, FString Address)
				{ Heard += FWindowText::ToQt(Version) + u' ' + FWindowText::ToQt(Address); });
			Menu.AskForRelease = [this](QString& Version, QString& Address)
			{
				Offered += Version + u' ' + Address;
				Version = NewVersion;
				Address = QStringLiteral("https://corvane.example/3");
				return bAccept;
			};
		}
		~FDeveloperMenuTest() override { AuthDelegates::OnUpgradeAvailable.Remove(Handle); }

		FDeveloperMenu Menu;
		FDelegateHandle Handle;
		QStringList Heard;
		QStringList Offered;
		QString NewVersion = QStringLiteral("3.0");
		bool bAccept = true;
	};

	QString GetDefault()
	{
		return QStringLiteral("2.1 https://corvane.example/download/Release_2.1.zip");
	}
}

TEST_F(FDeveloperMenuTest, AnnouncesARelease)
{
	Menu.actions()[0]->trigger();
	EXPECT_EQ(Offered, QStringList({GetDefault()}));
	EXPECT_EQ(Heard, QStringList({QStringLiteral("3.0 https://corvane.example/3")}));
	EXPECT_EQ(LastSaid, QStringLiteral("Announced release 3.0"));
}

TEST_F(FDeveloperMenuTest, OffersWhatWasAnnouncedLast)
{
	bAccept = false;
	Menu.AnnounceRelease();
	EXPECT_TRUE(Heard.isEmpty());
	bAccept = true;
	Menu.AnnounceRelease();
	EXPECT_EQ(Offered.last(), GetDefault()) << "what was cancelled is forgotten";
	Menu.AnnounceRelease();
	EXPECT_EQ(Offered.last(), QStringLiteral("3.0 https://corvane.example/3"));
}

TEST_F(FDeveloperMenuTest, AnnouncesAnEmptyVersionToo)
{
	NewVersion.clear();
	Menu.AnnounceRelease();
	EXPECT_EQ(Heard, QStringList({QStringLiteral(" https://corvane.example/3")}));
}

TEST_F(FDeveloperMenuTest, CollectsGarbage)
{
	const TWeakObjectPtr<UObject> Garbage = NewObject<UWorld>();
	ASSERT_TRUE(Garbage.IsValid());
	Menu.actions()[1]->trigger();
	EXPECT_FALSE(Garbage.IsValid());
	EXPECT_EQ(LastSaid, QStringLiteral("Garbage collected"));
}

TEST_F(FDeveloperMenuTest, AsksInADialogThatHoldsTheLastValues)
{
	FReleaseDialog Dialog(QStringLiteral("2.1"), QStringLiteral("https://a"), nullptr);
	Dialog.show();
	EXPECT_EQ(Dialog.GetVersion(), QStringLiteral("2.1"));
	QLineEdit* Version = Dialog.findChildren<QLineEdit*>()[0];
	Version->setFocus();
	QTest::keyClicks(Version, QStringLiteral("2.2"));
	EXPECT_EQ(Dialog.GetVersion(), QStringLiteral("2.2")) << "typing replaces it";
	EXPECT_EQ(Dialog.GetAddress(), QStringLiteral("https://a"));
	Grab(Dialog, "release");
	QTest::keyClick(Version, Qt::Key_Return);
	EXPECT_EQ(Dialog.result(), QDialog::Accepted);
}
