// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <functional>
#include <vector>

#include "Panels/DetailsTree.h"

class FDetailsLine;
class FDetailsRowLine;
class FDetailsSplitter;

/**
 * The lines of a tree of details that are shown, one below the other, and the splitter between names and values. Only
 * what can be seen is polled. A line keeps its widget as long as it is shown, whatever else comes and goes.
 */
class FDetailsList : public QScrollArea
{
public:
	explicit FDetailsList(FDetailsTree& InTree, QWidget* Parent = nullptr);
	~FDetailsList() override;

	/** Takes over what the tree shows now. Scroll and focus stay with their lines. */
	void ShowLines();
	/** Brings the rows that can be seen up to date: all of them, or those that never were. */
	void PollSeen(bool bAll);
	/** Brings the row up to date that holds the keyboard focus, and those that have come into sight or got another
	 * width. */
	void PollBetween();

	/** What the user is doing in a row. */
	struct FWork
	{
		int32 Id = 0;
		std::vector<int> Place;
		/** What was typed and not yet taken over; null if nothing was. */
		QString Typed;
	};
	FWork FindWork() const;
	/** Goes on with it, in the row of that number if it is still shown. */
	void Resume(const FWork& Work);

	/** The row of that number, or null if it is not shown. */
	FDetailsRowLine* FindRow(int32 Id) const;
	/** The first shown line of that name, or null. */
	FDetailsLine* FindLine(const QString& Name) const;
	int GetNumLines() const { return static_cast<int>(Lines.size()); }
	/** Where the values' column begins. */
	int GetNameWidth() const;
	FDetailsSplitter& GetSplitter() const { return *Splitter; }

	/** What takes the focus by Tab, in the order in which it is seen; of rows out of sight only when they are next to
	 * From. */
	std::vector<QWidget*> FindStops(const QWidget* From);

	/** The user wants the class's value for the row of that number. */
	std::function<void(int32)> OnReset;

protected:
	bool viewportEvent(QEvent* Event) override;

private:
	struct FLine
	{
		int Item;
		int32 Id;
		QString Key;
		FDetailsLine* Widget;

		FDetailsRowLine* GetRow() const;
	};
	/** What stands at the upper edge, and how far above it it begins. */
	struct FAnchor
	{
		int32 Id = 0;
		QString Key;
		int Offset = 0;
	};

	FDetailsLine* TakeLine(int Item, std::vector<FLine>& Former);
	FDetailsLine* MakeLine(const FDetailsItem& Item);
	void Arrange();
	bool IsSeen(const FDetailsLine& Line) const;
	int FindIndex(const QWidget* Within) const;

	FAnchor FindAnchor() const;
	void ScrollTo(const FAnchor& Anchor);
	std::vector<QWidget*> FindStopsOf(const FLine& Line);
	void SetOpen(const FDetailsLine& Line, bool bOpen);
	void Step(const FDetailsLine& From, int Steps);
	void MoveSplitter(int X);

	FDetailsTree& Tree;
	std::vector<FLine> Lines;
	QWidget* Content;
	FDetailsSplitter* Splitter;
	/** The names' part of the width. */
	double NameShare = 0.4;
	/** Rows have come into sight since the last poll, or have got another width. */
	bool bUncovered = false;
};
