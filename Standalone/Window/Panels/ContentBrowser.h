// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <functional>
#include <vector>

#include "Panels/AssetModel.h"
#include "Panels/Panel.h"
#include "WindowContext.h"

class FListNote;
class FSearchBox;

/** "Content Browser": the assets in memory as tiles. Shows what the editor is asked to show. */
class FContentBrowser : public FPanel
{
public:
	explicit FContentBrowser(FWindowContext& Context, QWidget* Parent = nullptr);
	~FContentBrowser() override;

	void Poll() override;
	QSize sizeHint() const override { return QSize(640, 200); }

	/** The editor has been asked to bring the content browser to the front. */
	std::function<void()> OnFrontRequested = [] {};

private:
	void SetUpView();
	void LayOut();
	/** Shows what the editor was asked to show since the last poll. */
	void FollowSync();
	void ShowPath();

	FSearchBox* SearchBox;
	QListView* View;
	FListNote* Note;
	QLabel* Path;
	FAssetModel* Model;

	FDelegateHandle SyncHandle;
	std::vector<TWeakObjectPtr<UObject>> ToShow;
	bool bSync = false;
	bool bFront = false;
};
