// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <functional>

#include "Panels/OutlinerModel.h"
#include "Panels/Panel.h"
#include "Panels/SelectionWatch.h"
#include "WindowContext.h"

class FListNote;
class FSearchBox;

/** "World Outliner": the open level's actors as a list, in which they are searched and selected. */
class FOutliner : public FPanel
{
public:
	explicit FOutliner(FWindowContext& Context, QWidget* Parent = nullptr);

	void Poll() override;

	/** The user wants to see what he has selected. */
	std::function<void()> OnFocusRequested = [] {};

private:
	void SetUpView();
	void LayOut();
	void Search(const QString& Text);
	/** The user's selection in the list becomes the editor's. */
	void SelectInEditor();
	/** The editor's selection becomes the list's. */
	void SelectInList(bool bScroll);
	void ShowNumbers();
	AActor* GetActor(const QModelIndex& Index) const;
	/** The actor in the first row that can be seen, or null where nothing is scrolled. */
	AActor* GetTopActor() const;

	FSearchBox* SearchBox;
	QTreeView* View;
	FListNote* Note;
	QLabel* Footer;
	FOutlinerModel* Model;
	FSelectionWatch Selection;
	/** The list is being changed by this panel, not by the user. */
	bool bFollowing = false;
};
