// Copyright Corvane. MIT License.
#include "FileActions.h"

#include "FileDialogs.h"

#include "LevelPlan.h"

#include "AssetRegistry/IAssetRegistry.h"
#include "Editor.h"
#include "EditorAssets.h"
#include "EditorViews.h"
#include "Engine/World.h"
#include "Framework/Application/SlateApplication.h"
#include "LevelBuilder.h"
#include "LevelFile.h"
#include "LevelToolBar.h"
#include "UObject/Package.h"
#include "WindowContext.h"
#include "WindowText.h"

namespace
{
	const char* const RecentKey = "RecentFiles";
	constexpr int MaxRecent = 10;
	/** Seconds between two looks at all assets. */
	constexpr double LookInterval = 0.25;
	/** Bytes; reading more takes long enough for somebody to wonder. */
	constexpr qint64 LongFile = qint64(4) << 20U;

	std::string ToNative(const QString& Path)
	{
		return QFile::encodeName(Path).toStdString();
	}

	QString FromUtf8(const std::string& Line)
	{
		return QString::fromUtf8(Line.data(), static_cast<qsizetype>(Line.size()));
	}

	/** Says that somebody has to wait, for as long as it lives. */
	class FBusy
	{
	public:
		FBusy(const QString& Line, bool bLong, QWidget& Window) : Dialog(Line, QString(), 0, 0, &Window)
		{
			QApplication::setOverrideCursor(Qt::WaitCursor);
			Dialog.setWindowModality(Qt::WindowModal);
			Dialog.setMinimumDuration(500);
			if (bLong)
			{
				// What follows is one call, in which no time passes for the dialog.
				Dialog.show();
				QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
			}
		}
		~FBusy() { QApplication::restoreOverrideCursor(); }
		FBusy(const FBusy&) = delete;
		FBusy& operator=(const FBusy&) = delete;

	private:
		QProgressDialog Dialog;
	};

	/** Has an edit box that is being typed in commit, so that it is saved as it stands on the screen. */
	void CommitTyping()
	{
		const QPointer<QWidget> Focused = QApplication::focusWidget();
		if (Focused)
		{
			Focused->clearFocus();
		}
		if (Focused)
		{
			Focused->setFocus();
		}
	}

	void ShowStep(QAction* Action, const QString& Verb, bool bCan, const FTransactionContext& Step)
	{
		if (!Action)
		{
			return;
		}
		Action->setEnabled(bCan);
		const QString Title = bCan ? FWindowText::ForCaption(Step.Title) : QString();
		Action->setText(Title.isEmpty() ? Verb : Verb + u' ' + Title);
	}
}

FFileActions::FFileActions(FWindowContext& InContext, QWidget& InWindow, QSettings* InSettings)
	: QObject(&InWindow), Context(InContext), Window(InWindow), Settings(InSettings)
{
	AskToSave = [this](const QString& Name) { return FFileDialogs::AskToSave(Window, Name); };
	PickFileToOpen = [this](const QString& Folder) { return FFileDialogs::PickFileToOpen(Window, Folder); };
	PickFileToSave = [this](const QString& File) { return FFileDialogs::PickFileToSave(Window, File); };
	ShowError = [this](const QString& Line) { FFileDialogs::ShowError(Window, Line); };
	if (!Context.IsScript())
	{
		Window.installEventFilter(this);
		Context.Editor.GetToolBar().OnSave = FSimpleDelegate::CreateLambda([this] { Save(); });
	}
}

FFileActions::~FFileActions()
{
	if (!Context.IsScript())
	{
		Context.Editor.GetToolBar().OnSave.Unbind();
	}
}

QAction* FFileActions::Add(QMenu& Menu, const QString& Text, const QKeySequence& Shortcut, FCommand Command)
{
	QAction* Action = Menu.addAction(Text);
	Action->setShortcut(Shortcut);
	connect(Action, &QAction::triggered, this, [this, Command] { (this->*Command)(); });
	return Action;
}

void FFileActions::FillFileMenu(QMenu& Menu)
{
	Add(Menu, QStringLiteral("&New Level"), Qt::CTRL | Qt::Key_N, &FFileActions::New);
	Add(Menu, QStringLiteral("&Open Level…"), Qt::CTRL | Qt::Key_O, &FFileActions::OpenPicked);
	Menu.addSeparator();
	Add(Menu, QStringLiteral("&Save Current Level"), Qt::CTRL | Qt::Key_S, &FFileActions::SaveCurrent);
	Add(Menu, QStringLiteral("Save Level &As…"), Qt::CTRL | Qt::SHIFT | Qt::Key_S, &FFileActions::SaveElsewhere);
	Menu.addSeparator();
	if (Settings)
	{
		RecentMenu = Menu.addMenu(QStringLiteral("&Recent Levels"));
		RecentMenu->setToolTipsVisible(true);
		FillRecentMenu();
		Menu.addSeparator();
	}
	Add(Menu, QStringLiteral("E&xit"), QKeySequence(), &FFileActions::Exit);
}

void FFileActions::FillEditMenu(QMenu& Menu)
{
	UndoAction = Add(Menu, QStringLiteral("Undo"), Qt::CTRL | Qt::Key_Z, &FFileActions::Undo);
	RedoAction = Add(Menu, QStringLiteral("Redo"), Qt::CTRL | Qt::Key_Y, &FFileActions::Redo);
	RefreshEdits();
}

void FFileActions::Poll()
{
	RefreshEdits();
	const double Now = FSlateApplication::Get().GetCurrentTime();
	if (LastLook < 0.0 || Now < LastLook || Now - LastLook >= LookInterval)
	{
		LastLook = Now;
		Retitle();
	}
}

void FFileActions::RefreshEdits()
{
	const UTransactor& History = *GEditor->Trans;
	ShowStep(UndoAction, QStringLiteral("Undo"), History.CanUndo(), History.GetUndoContext());
	ShowStep(RedoAction, QStringLiteral("Redo"), History.CanRedo(), History.GetRedoContext());
}

bool FFileActions::IsDirty() const
{
	if (FEditorViews::GetLevelWorld()->GetOutermost()->IsDirty())
	{
		return true;
	}
	for (const UObject* Asset : FEditorAssets::GetAll())
	{
		if (Asset->GetOutermost()->IsDirty())
		{
			return true;
		}
	}
	return false;
}

QString FFileActions::GetName() const
{
	return Path.isEmpty() ? QStringLiteral("Untitled") : QFileInfo(Path).fileName();
}

QString FFileActions::GetFolder() const
{
	return Path.isEmpty() ? QDir::currentPath() : QFileInfo(Path).absolutePath();
}

QString FFileActions::GetTitle() const
{
	return IsDirty() ? GetName() + u'*' : GetName();
}

void FFileActions::Retitle()
{
	const QString New = GetTitle();
	if (New != Title)
	{
		Title = New;
		OnTitleChanged(Title);
	}
}

bool FFileActions::CanWork()
{
	// Its module may have been unloaded; without it nobody knows which assets a level has.
	if (!IAssetRegistry::Get())
	{
		ShowError(QStringLiteral("A level needs the module \"AssetRegistry\", which is not loaded."));
		return false;
	}
	return true;
}

bool FFileActions::MayLoseChanges()
{
	CommitTyping();
	if (!IsDirty())
	{
		return true;
	}
	switch (AskToSave(GetName()))
	{
		case EAnswer::Save:
			return Save();
		case EAnswer::Discard:
			return true;
		default:
			return false;
	}
}

void FFileActions::New()
{
	if (!CanWork() || !MayLoseChanges())
	{
		return;
	}
	FLevelPlan Empty;
	FLevelBuilder::Replace(Empty);
	Context.Editor.EmptySecondWorld();
	SetPath(QString());
	Context.Say(QStringLiteral("New level"));
}

void FFileActions::OpenPicked()
{
	if (!CanWork() || !MayLoseChanges())
	{
		return;
	}
	const QString Picked = PickFileToOpen(GetFolder());
	if (!Picked.isEmpty())
	{
		OpenAnew(Picked);
	}
}

void FFileActions::Open(const QString& NewPath)
{
	if (CanWork() && MayLoseChanges())
	{
		OpenAnew(NewPath);
	}
}

void FFileActions::OpenAnew(const QString& NewPath)
{
	const QFileInfo File(NewPath);
	std::string Error;
	bool bOpened = false;
	{
		const FBusy Busy(QStringLiteral("Opening %1…").arg(File.fileName()), File.size() > LongFile, Window);
		bOpened = FLevelFile::Open(ToNative(NewPath), Error);
	}
	if (!bOpened)
	{
		ShowError(FromUtf8(Error));
		return;
	}
	Context.Editor.EmptySecondWorld();
	SetPath(NewPath);
	Context.Say(QStringLiteral("Opened %1").arg(GetName()));
}

bool FFileActions::Save()
{
	return Path.isEmpty() ? SaveAs() : SaveTo(Path);
}

bool FFileActions::SaveAs()
{
	if (!CanWork())
	{
		return false;
	}
	const QString Picked =
		PickFileToSave(QDir(GetFolder()).filePath(Path.isEmpty() ? QStringLiteral("Untitled.json") : GetName()));
	return !Picked.isEmpty() && SaveTo(Picked);
}

bool FFileActions::SaveTo(const QString& NewPath)
{
	if (!CanWork())
	{
		return false;
	}
	CommitTyping();
	std::string Error;
	bool bSaved = false;
	{
		const FBusy Busy(QStringLiteral("Saving…"), false, Window);
		bSaved = FLevelFile::Save(ToNative(NewPath), Error);
	}
	if (!bSaved)
	{
		ShowError(FromUtf8(Error));
		return false;
	}
	SetPath(NewPath);
	Context.Say(QStringLiteral("Saved %1").arg(GetName()));
	return true;
}

void FFileActions::SetPath(const QString& NewPath)
{
	Path = NewPath.isEmpty() ? QString() : QFileInfo(NewPath).absoluteFilePath();
	if (Settings && !Path.isEmpty())
	{
		QStringList Files = GetRecentFiles();
		Files.removeAll(Path);
		Files.prepend(Path);
		Settings->setValue(QLatin1String(RecentKey), Files.mid(0, MaxRecent));
		FillRecentMenu();
	}
	Retitle();
}

QStringList FFileActions::GetRecentFiles() const
{
	return Settings ? Settings->value(QLatin1String(RecentKey)).toStringList().mid(0, MaxRecent) : QStringList();
}

void FFileActions::FillRecentMenu()
{
	if (!RecentMenu)
	{
		return;
	}
	RecentMenu->clear();
	for (const QString& File : GetRecentFiles())
	{
		const auto Number = RecentMenu->actions().size() + 1;
		const QString Name = QFileInfo(File).fileName().replace(u'&', QStringLiteral("&&"));
		QAction* Action = RecentMenu->addAction(QStringLiteral("%1 %2").arg(Number).arg(Name));
		Action->setToolTip(QStringLiteral("<qt>%1</qt>").arg(File.toHtmlEscaped()));
		// Not now: opening fills this menu anew.
		connect(
			Action, &QAction::triggered, this, [this, File] { Open(File); }, Qt::QueuedConnection);
	}
	RecentMenu->setEnabled(!RecentMenu->isEmpty());
}

void FFileActions::Exit()
{
	Window.close();
}

void FFileActions::Undo()
{
	const FTransactionContext Step = GEditor->Trans->GetUndoContext();
	if (GEditor->UndoTransaction())
	{
		Context.Say(QStringLiteral("Undo: %1").arg(FWindowText::ToQt(Step.Title)));
	}
}

void FFileActions::Redo()
{
	const FTransactionContext Step = GEditor->Trans->GetRedoContext();
	if (GEditor->RedoTransaction())
	{
		Context.Say(QStringLiteral("Redo: %1").arg(FWindowText::ToQt(Step.Title)));
	}
}

bool FFileActions::eventFilter(QObject* Watched, QEvent* Event)
{
	if (Watched == &Window && Event->type() == QEvent::Close && !MayLoseChanges())
	{
		Event->ignore();
		return true;
	}
	return QObject::eventFilter(Watched, Event);
}
