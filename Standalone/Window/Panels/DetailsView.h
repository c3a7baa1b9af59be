// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include "Panels/DetailsTree.h"
#include "Panels/Panel.h"
#include "WindowContext.h"

class FDetailsList;

/**
 * The details of the selected actors. What can be seen of them is brought up to date four times a second by the
 * application's clock, and what the user works with at each frame. For a script nothing is looked at until ShowNow.
 */
class FDetailsView : public FPanel
{
public:
	explicit FDetailsView(FWindowContext& InContext, QWidget* Parent = nullptr);
	~FDetailsView() override;

	void Poll() override;

	/** Everything is brought up to date with the next Poll. */
	void Invalidate() override { bDue = true; }

	/** Brings everything that can be seen up to date at once. A script's rows are those that it has last asked for. */
	void ShowNow();

	FDetailsList& GetList() const { return *List; }
	QLineEdit& GetSearch() const { return *Search; }
	/** What is shown instead of rows; "" while there are some. */
	QString GetMessage() const;

protected:
	void resizeEvent(QResizeEvent* Event) override;
	bool eventFilter(QObject* Object, QEvent* Event) override;
	bool focusNextPrevChild(bool bNext) override;

private:
	void MakeHeader(QBoxLayout& Box);
	bool IsBeatDue();
	/** Has the editor look at its rows. */
	void ReadRows();
	void TakeOver(const std::vector<FDetailsPanel::FCategory>& Categories);
	void ShowTitle();
	void ShowMessage();
	void Reset(int32 Id);

	FWindowContext& Context;
	FDetailsTree Tree;
	FDetailsList* List;
	QLabel* Icon = nullptr;
	QLabel* Title = nullptr;
	QLineEdit* Search = nullptr;
	QLabel* Message = nullptr;
	QString TitleText;
	double LastBeat = 0.0;
	uint32 ShownVersion = 0;
	/** The greatest number of a row so far: those of another selection are greater. */
	int32 LastId = 0;
	bool bDue = true;
};
