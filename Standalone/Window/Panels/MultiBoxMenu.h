// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <vector>

#include "CoreMinimal.h"
#include "Framework/MultiBox/MultiBox.h"

/**
 * The menu of a multi box, made for one opening; deletes itself after it was closed. Typing filters the entries if the
 * multi box can be searched. The multi box is held only while the menu is open.
 */
class FMultiBoxMenu : public QMenu
{
public:
	FMultiBoxMenu(const TSharedRef<const FMultiBox>& InBox, QWidget* Parent);

	/** Opens it with its upper left corner there, as far as the screen allows. */
	void OpenAt(const QPoint& Corner);

	QSize sizeHint() const override;

	/** Shows only entries whose label holds the text, whatever the case, and the headings of those. */
	void Filter(const QString& Text);

	/** Closes the menu and lets go of the multi box at once: whoever made it may be going. */
	void Abandon();

	/** Hears, in one line, that an entry which was chosen did nothing. */
	std::function<void(const QString&)> OnRefused = [](const QString&) {};

protected:
	void keyPressEvent(QKeyEvent* Event) override;
	void mouseReleaseEvent(QMouseEvent* Event) override;
	void hideEvent(QHideEvent* Event) override;
	bool eventFilter(QObject* Watched, QEvent* Event) override;

private:
	struct FEntry
	{
		QAction* Action;
		TWeakPtr<const FMultiBlock> Block;
	};
	/** A heading, or the line above a section without one, and what stands below it. */
	struct FSection
	{
		QAction* Heading;
		std::vector<FEntry> Entries;
	};

	void AddSearch();
	void AddSection(const FMultiBoxSection& Section);
	FEntry AddEntry(const TSharedRef<const FMultiBlock>& Block);
	/** What may change while the menu stays open: whether entries can be chosen and are checked. */
	void Refresh();
	void Execute(const TWeakPtr<const FMultiBlock>& Block);
	/** Where a choice must not close the menu: chooses, and says whether it has dealt with the event. */
	bool ChooseAndStay(QAction* Action);
	bool IsSearchKey(const QKeyEvent& Event) const;
	QAction* FindFirstMatch() const;
	/** Whether there is more than it may show at once. */
	bool IsTooHigh() const { return QMenu::sizeHint().height() > maximumHeight(); }
	/** Scrolls to the active entry. */
	void KeepInSight();

	TSharedPtr<const FMultiBox> Box;
	QPoint Place;
	std::vector<FSection> Sections;
	QWidgetAction* SearchAction = nullptr;
	QLineEdit* Search = nullptr;
	/** Says that no entry matches. */
	QAction* Nothing = nullptr;
};
