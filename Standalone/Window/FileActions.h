// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <functional>

#include "CoreMinimal.h"

struct FWindowContext;

/**
 * What the menus File and Edit do: levels are made, opened and saved, steps undone and redone. Nothing that is not
 * saved is lost without a question, be it in the level or in an asset; on a no, or a failure, all stays as it was.
 *
 * Goes before the editor ends.
 */
class FFileActions : public QObject
{
public:
	enum class EAnswer
	{
		Save,
		Discard,
		Cancel
	};

	/**
	 * For a person the window is closed only after the question about what is not saved.
	 * @param InSettings where the levels that were last open are remembered; null for nowhere. It outlives this.
	 */
	FFileActions(FWindowContext& InContext, QWidget& InWindow, QSettings* InSettings);
	~FFileActions() override;

	void FillFileMenu(QMenu& Menu);
	void FillEditMenu(QMenu& Menu);

	/** Once a frame: the title, and what can be undone and redone. */
	void Poll();
	/** What it looks at only now and then is due with the next Poll. */
	void Invalidate() { LastLook = -1.0; }

	/** @return whether the user did not cancel; what is not saved has been saved then, or may go. */
	bool MayLoseChanges();

	/** Paths as the file system has them. */
	void New();
	void Open(const QString& Path);
	bool Save();
	bool SaveAs();

	/** The open level came from there, and is saved there. */
	void SetPath(const QString& NewPath);
	/** Empty for a level that was never saved. */
	const QString& GetPath() const { return Path; }
	/** "Main.json", "Untitled"; with a "*" behind it if something is not saved. */
	QString GetTitle() const;
	QStringList GetRecentFiles() const;

	/** Hears the title whenever it is another one. */
	std::function<void(const QString&)> OnTitleChanged = [](const QString&) {};

	/** Dialogs. Those that pick a file return an empty string if none was picked. */
	std::function<EAnswer(const QString& Name)> AskToSave;
	std::function<QString(const QString& Folder)> PickFileToOpen;
	std::function<QString(const QString& Suggestion)> PickFileToSave;
	std::function<void(const QString& Line)> ShowError;

protected:
	bool eventFilter(QObject* Watched, QEvent* Event) override;

private:
	using FCommand = void (FFileActions::*)();

	QAction* Add(QMenu& Menu, const QString& Text, const QKeySequence& Shortcut, FCommand Command);
	void OpenPicked();
	void OpenAnew(const QString& NewPath);
	void SaveCurrent() { Save(); }
	void SaveElsewhere() { SaveAs(); }
	void Exit();
	void Undo();
	void Redo();
	bool SaveTo(const QString& NewPath);
	/** @return whether levels can be made, opened and saved at all now; says why not. */
	bool CanWork();
	void FillRecentMenu();
	bool IsDirty() const;
	void Retitle();
	void RefreshEdits();
	QString GetName() const;
	QString GetFolder() const;

	FWindowContext& Context;
	QWidget& Window;
	QSettings* Settings;
	QString Path;
	QString Title;
	QPointer<QMenu> RecentMenu;
	QPointer<QAction> UndoAction;
	QPointer<QAction> RedoAction;
	/** When the assets were last asked, by the application's time. */
	double LastLook = -1.0;
};
