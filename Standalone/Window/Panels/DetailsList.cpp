// Copyright Corvane. MIT License.
#include "DetailsList.h"

#include <algorithm>

#include "FocusSync.h"
#include "Panels/DetailsRowLine.h"
#include "Panels/DetailsSplitter.h"
#include "SlateHost.h"

namespace
{
	/** What neither column may fall below, unless there is no room for both. */
	constexpr int MinColumn = 60;
	/** A row's height is known when it has been polled, and rows below may come into sight then. */
	constexpr int MaxPasses = 4;
}

FDetailsRowLine* FDetailsList::FLine::GetRow() const
{
	return Id != 0 ? static_cast<FDetailsRowLine*>(Widget) : nullptr;
}

FDetailsList::FDetailsList(FDetailsTree& InTree, QWidget* Parent)
	: QScrollArea(Parent), Tree(InTree), Content(new QWidget), Splitter(new FDetailsSplitter(viewport()))
{
	setFrameShape(QFrame::NoFrame);
	setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
	setFocusPolicy(Qt::NoFocus);
	setAccessibleName(QStringLiteral("Details"));
	setWidget(Content);
	Splitter->OnMoved = [this](int X) { MoveSplitter(X); };
	connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { bUncovered = true; });
	Splitter->raise();
}

FDetailsList::~FDetailsList() = default;

void FDetailsList::ShowLines()
{
	// What is deleted hands Qt's focus on, which nobody has asked for.
	const FFocusSync::FFromEngine FromEngine;
	const FAnchor Anchor = FindAnchor();
	const int Focused = FindIndex(QApplication::focusWidget());
	std::vector<FLine> Former = std::move(Lines);
	Lines.clear();
	for (const int Item : Tree.FindShown())
	{
		const FDetailsItem& Shown = Tree.GetItems()[Item];
		FDetailsLine* Widget = TakeLine(Item, Former);
		Widget->SetItem(Shown);
		Widget->SetOpen(Tree.IsOpen(Item));
		Lines.push_back({Item, Shown.Id, Shown.Key, Widget});
	}
	const bool bFocusGoes = Focused >= 0 && Former[Focused].Widget != nullptr;
	for (const FLine& Line : Former)
	{
		delete Line.Widget;
	}
	if (bFocusGoes && !Lines.empty())
	{
		Lines[std::min<size_t>(Focused, Lines.size() - 1)].Widget->setFocus(Qt::OtherFocusReason);
	}
	Arrange();
	ScrollTo(Anchor);
}

FDetailsLine* FDetailsList::TakeLine(int Item, std::vector<FLine>& Former)
{
	const FDetailsItem& Wanted = Tree.GetItems()[Item];
	// Mostly they come in the order in which they were.
	const size_t Expected = Lines.size();
	const auto IsWanted = [&Wanted](const FLine& Line)
	{ return Line.Widget && Line.Id == Wanted.Id && (Wanted.IsRow() || Line.Key == Wanted.Key); };
	auto Found = Expected < Former.size() && IsWanted(Former[Expected])
		? Former.begin() + static_cast<std::ptrdiff_t>(Expected)
		: std::find_if(Former.begin(), Former.end(), IsWanted);
	if (Found == Former.end())
	{
		return MakeLine(Wanted);
	}
	FDetailsLine* Widget = Found->Widget;
	Found->Widget = nullptr;
	return Widget;
}

FDetailsLine* FDetailsList::MakeLine(const FDetailsItem& Item)
{
	FDetailsLine* Line = nullptr;
	if (Item.IsRow())
	{
		FDetailsRowLine* Row = new FDetailsRowLine(Content);
		Row->OnReset = [this, Id = Item.Id] { OnReset(Id); };
		Line = Row;
	}
	else
	{
		Line = new FDetailsLine(Content);
	}
	Line->OnOpen = [this, Line](bool bOpen) { SetOpen(*Line, bOpen); };
	Line->OnStep = [this, Line](int Steps) { Step(*Line, Steps); };
	return Line;
}

void FDetailsList::Arrange()
{
	const int Width = viewport()->width();
	int Top = 0;
	for (const FLine& Line : Lines)
	{
		const int Height = Line.Widget->GetHeight();
		Line.Widget->setGeometry(0, Top, Width, Height);
		if (FDetailsRowLine* Row = Line.GetRow())
		{
			Row->SetNameWidth(GetNameWidth());
		}
		Line.Widget->show();
		Top += Height;
	}
	Content->resize(Width, Top);
	Splitter->Place(GetNameWidth(), viewport()->height());
	Splitter->setVisible(!Lines.empty());
}

int FDetailsList::GetNameWidth() const
{
	const int Width = viewport()->width();
	const int Wanted = qRound(NameShare * Width);
	return Width < 2 * MinColumn ? Width / 2 : std::clamp(Wanted, MinColumn, Width - MinColumn);
}

void FDetailsList::MoveSplitter(int X)
{
	NameShare = static_cast<double>(X) / std::max(1, viewport()->width());
	Arrange();
	PollSeen(false);
}

bool FDetailsList::viewportEvent(QEvent* Event)
{
	const bool bHandled = QScrollArea::viewportEvent(Event);
	if (Event->type() == QEvent::Resize)
	{
		Arrange();
		bUncovered = true;
	}
	return bHandled;
}

bool FDetailsList::IsSeen(const FDetailsLine& Line) const
{
	const int Top = Content->y() + Line.y();
	return Top < viewport()->height() && Top + Line.height() > 0;
}

void FDetailsList::PollSeen(bool bAll)
{
	bUncovered = false;
	bool bAgain = true;
	for (int Pass = 0; Pass < MaxPasses && bAgain; ++Pass)
	{
		bAgain = false;
		const FAnchor Anchor = FindAnchor();
		for (const FLine& Line : Lines)
		{
			FDetailsRowLine* Row = Line.GetRow();
			if (Row && IsSeen(*Row) && ((bAll && Pass == 0) || !Row->IsPolled()))
			{
				bAgain |= Row->Poll();
			}
		}
		if (bAgain)
		{
			Arrange();
			ScrollTo(Anchor);
		}
	}
}

void FDetailsList::PollBetween()
{
	if (bUncovered)
	{
		PollSeen(false);
	}
	const int Index = FindIndex(QApplication::focusWidget());
	FDetailsRowLine* Row = Index >= 0 ? Lines[Index].GetRow() : nullptr;
	if (Row && Row->Poll())
	{
		Arrange();
	}
}

int FDetailsList::FindIndex(const QWidget* Within) const
{
	while (Within && Within->parentWidget() != Content)
	{
		Within = Within->parentWidget();
	}
	const auto Found =
		std::find_if(Lines.begin(), Lines.end(), [Within](const FLine& Line) { return Line.Widget == Within; });
	return Within && Found != Lines.end() ? static_cast<int>(Found - Lines.begin()) : -1;
}

FDetailsRowLine* FDetailsList::FindRow(int32 Id) const
{
	const auto Found =
		std::find_if(Lines.begin(), Lines.end(), [Id](const FLine& Line) { return Id != 0 && Line.Id == Id; });
	return Found == Lines.end() ? nullptr : Found->GetRow();
}

FDetailsLine* FDetailsList::FindLine(const QString& Name) const
{
	const auto Found =
		std::find_if(Lines.begin(), Lines.end(), [&Name](const FLine& Line) { return Line.Widget->GetName() == Name; });
	return Found == Lines.end() ? nullptr : Found->Widget;
}

FDetailsList::FAnchor FDetailsList::FindAnchor() const
{
	const int Top = verticalScrollBar()->value();
	for (const FLine& Line : Lines)
	{
		// Who stands at the top means to stay there.
		if (Top > 0 && Line.Widget->y() + Line.Widget->height() > Top)
		{
			return {Line.Id, Line.Key, Top - Line.Widget->y()};
		}
	}
	return {};
}

void FDetailsList::ScrollTo(const FAnchor& Anchor)
{
	for (const FLine& Line : Lines)
	{
		if (!Anchor.Key.isEmpty() && Line.Id == Anchor.Id && Line.Key == Anchor.Key)
		{
			verticalScrollBar()->setValue(Line.Widget->y() + Anchor.Offset);
			return;
		}
	}
}

FDetailsList::FWork FDetailsList::FindWork() const
{
	FWork Work;
	QWidget* Focus = QApplication::focusWidget();
	const int Index = FindIndex(Focus);
	const FDetailsRowLine* Row = Index >= 0 ? Lines[Index].GetRow() : nullptr;
	if (Row && Row->GetHost().isAncestorOf(Focus))
	{
		Work.Id = Lines[Index].Id;
		Work.Place = Row->FindFocus();
		const QLineEdit* Edit = qobject_cast<QLineEdit*>(Focus);
		Work.Typed = Edit && Edit->isModified() ? Edit->text() : QString();
	}
	return Work;
}

void FDetailsList::Resume(const FWork& Work)
{
	FDetailsRowLine* Row = FindRow(Work.Id);
	if (!Row || Row->IsPolled())
	{
		return;
	}
	Row->Poll();
	Row->SetFocus(Work.Place);
	QLineEdit* Edit = qobject_cast<QLineEdit*>(QApplication::focusWidget());
	if (Edit && !Work.Typed.isNull() && Row->GetHost().isAncestorOf(Edit) && Edit->text() != Work.Typed)
	{
		Edit->selectAll();
		Edit->insert(Work.Typed);
	}
}

void FDetailsList::SetOpen(const FDetailsLine& Line, bool bOpen)
{
	Tree.SetOpen(Lines[FindIndex(&Line)].Item, bOpen);
	ShowLines();
	PollSeen(false);
}

void FDetailsList::Step(const FDetailsLine& From, int Steps)
{
	const int Next = FindIndex(&From) + Steps;
	if (Next >= 0 && Next < GetNumLines())
	{
		Lines[Next].Widget->setFocus(Qt::OtherFocusReason);
		ensureWidgetVisible(Lines[Next].Widget, 0, 0);
		PollSeen(false);
	}
}

std::vector<QWidget*> FDetailsList::FindStops(const QWidget* From)
{
	const int Current = FindIndex(From);
	// A row has no stops before it was polled: those next to where the focus is have to.
	for (int Index = Current + 1; Index < GetNumLines() && FindStopsOf(Lines[Index]).empty(); ++Index)
	{}
	for (int Index = (Current < 0 ? GetNumLines() : Current) - 1; Index >= 0 && FindStopsOf(Lines[Index]).empty();
		 --Index)
	{}
	std::vector<QWidget*> Stops;
	for (const FLine& Line : Lines)
	{
		FDetailsRowLine* Row = Line.GetRow();
		if (!Row || Row->IsPolled())
		{
			const std::vector<QWidget*> Inside = FindStopsOf(Line);
			Stops.insert(Stops.end(), Inside.begin(), Inside.end());
		}
	}
	if (Splitter->isVisible())
	{
		Stops.push_back(Splitter);
	}
	return Stops;
}

std::vector<QWidget*> FDetailsList::FindStopsOf(const FLine& Line)
{
	FDetailsRowLine* Row = Line.GetRow();
	if (Row && !Row->IsPolled() && Row->Poll())
	{
		Arrange();
	}
	QList<QWidget*> Inside = Line.Widget->findChildren<QWidget*>();
	Inside.prepend(Line.Widget);
	std::vector<QWidget*> Stops;
	std::copy_if(Inside.begin(), Inside.end(), std::back_inserter(Stops),
		[](const QWidget* Widget)
		{ return (Widget->focusPolicy() & Qt::TabFocus) && Widget->isVisible() && Widget->isEnabled(); });
	return Stops;
}
