// Copyright Corvane. MIT License.
#include "DeveloperMenu.h"

#include "ReleaseDialog.h"

#include "AuthDelegates.h"
#include "UObject/UObjectGlobals.h"
#include "WindowContext.h"
#include "WindowText.h"

FDeveloperMenu::FDeveloperMenu(FWindowContext& InContext, QWidget* Parent)
	: QMenu(QStringLiteral("&Developer"), Parent), Context(InContext)
{
	setToolTipsVisible(true);
	AskForRelease = [this](QString& OutVersion, QString& OutAddress)
	{
		FReleaseDialog Dialog(OutVersion, OutAddress, parentWidget());
		const bool bAccepted = Dialog.exec() == QDialog::Accepted;
		OutVersion = Dialog.GetVersion();
		OutAddress = Dialog.GetAddress();
		return bAccepted;
	};
	QAction* Announce = addAction(QStringLiteral("&Announce a Release…"));
	Announce->setToolTip(QStringLiteral("Tells the plugin of a release, as its server would"));
	connect(Announce, &QAction::triggered, this, [this] { AnnounceRelease(); });
	QAction* Collect = addAction(QStringLiteral("&Collect Garbage"));
	Collect->setToolTip(QStringLiteral("Frees the objects that nothing refers to"));
	connect(Collect, &QAction::triggered, this, [this] { CollectNow(); });
}

void FDeveloperMenu::AnnounceRelease()
{
	QString NewVersion = Version;
	QString NewAddress = Address;
	if (!AskForRelease(NewVersion, NewAddress))
	{
		return;
	}
	Version = NewVersion;
	Address = NewAddress;
	AuthDelegates::OnUpgradeAvailable.Broadcast(FWindowText::FromQt(Version), FWindowText::FromQt(Address));
	Context.Say(QStringLiteral("Announced release %1").arg(Version));
}

void FDeveloperMenu::CollectNow()
{
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	Context.Say(QStringLiteral("Garbage collected"));
}
