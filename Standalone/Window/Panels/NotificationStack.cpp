// Copyright Corvane. MIT License.
#include "Panels/NotificationStack.h"

#include "Framework/Notifications/NotificationManager.h"
#include "Panels/NotificationFrame.h"
#include "WindowContext.h"
#include "WindowStyle.h"

namespace
{
	constexpr int Gap = 8;
	/** Between the notifications and the window's edges. */
	constexpr int Edge = 16;
}

FNotificationStack::FNotificationStack(FWindowContext& /*InContext*/, QWidget& Window) : FPanel(&Window)
{
	setAccessibleName(QStringLiteral("Notifications"));
	setFocusPolicy(Qt::NoFocus);
	More = new QLabel(this);
	More->setAutoFillBackground(true);
	More->setAlignment(Qt::AlignCenter);
	More->setFont(FWindowStyle::GetFont(9));
	hide();
	Announce = [](QWidget& Frame)
	{
		QAccessibleEvent Event(&Frame, QAccessible::Alert);
		QAccessible::updateAccessibility(&Event);
	};
	Window.installEventFilter(this);
	auto* Cycle = new QAction(this);
	Cycle->setShortcut(QKeySequence(Qt::Key_F6));
	connect(Cycle, &QAction::triggered, this, [this] { CycleFocus(); });
	Window.addAction(Cycle);
}

void FNotificationStack::Poll()
{
	for (FNotificationFrame* Frame : Frames)
	{
		Frame->Poll();
	}
	const TArray<TSharedRef<SNotificationItem>>& Items = FSlateNotificationManager::Get().GetShown();
	if (!IsUpToDate(Items))
	{
		Match(Items);
		Arrange();
	}
	if (!Frames.empty() && parentWidget()->children().last() != this)
	{
		raise();
	}
}

bool FNotificationStack::IsUpToDate(const TArray<TSharedRef<SNotificationItem>>& Items)
{
	unsigned Versions = 0;
	bool bSame = Items.Num() == NumMatched && GetRoom() == MatchedRoom;
	for (size_t Index = 0; bSame && Index < Frames.size(); ++Index)
	{
		Versions += Frames[Index]->GetVersion();
		bSame = Frames[Index]->Shows(Items[Items.Num() - 1 - static_cast<int32>(Index)]);
	}
	return bSame && Versions == MatchedVersions;
}

QRect FNotificationStack::GetRoom() const
{
	QRect Room = parentWidget()->rect().adjusted(Edge, Edge, -Edge, -Edge);
	const auto* Bar = parentWidget()->findChild<QStatusBar*>(QString(), Qt::FindDirectChildrenOnly);
	if (Bar && Bar->isVisibleTo(parentWidget()))
	{
		Room.setBottom(Room.bottom() - Bar->height());
	}
	return Room;
}

std::unique_ptr<FNotificationFrame> FNotificationStack::Take(const TSharedRef<SNotificationItem>& Item)
{
	for (auto Frame = Frames.begin(); Frame != Frames.end(); ++Frame)
	{
		if ((*Frame)->Shows(Item))
		{
			std::unique_ptr<FNotificationFrame> Taken(*Frame);
			Frames.erase(Frame);
			return Taken;
		}
	}
	return std::make_unique<FNotificationFrame>(Item, this);
}

void FNotificationStack::Match(const TArray<TSharedRef<SNotificationItem>>& Items)
{
	const QRect Room = GetRoom();
	const int MoreHeight = More->sizeHint().height() + Gap;
	std::vector<std::unique_ptr<FNotificationFrame>> Kept;
	int Height = 0;
	int32 Waiting = Items.Num();
	for (; Waiting > 0; --Waiting)
	{
		const bool bOldest = Waiting == 1;
		std::unique_ptr<FNotificationFrame> Frame = Take(Items[Waiting - 1]);
		const int Next = Height + Frame->GetSize(parentWidget()->height() / 3).height();
		// The newest is always shown; the others as far as there is room, also for the line about the rest.
		if (!Kept.empty() && Next + (bOldest ? 0 : MoreHeight) > Room.height())
		{
			Frames.push_back(Frame.release());
			break;
		}
		Height = Next + Gap;
		Kept.push_back(std::move(Frame));
	}
	if (FindFocused() >= 0)
	{
		GiveFocusBack();
	}
	for (FNotificationFrame* Gone : Frames)
	{
		Gone->hide();
		// Not at once: it may be handling the very click that closed it.
		Gone->deleteLater();
	}
	Frames.clear();
	for (std::unique_ptr<FNotificationFrame>& Frame : Kept)
	{
		Frames.push_back(Frame.release());
	}
	NumMatched = Items.Num();
	MatchedRoom = Room;
	MatchedVersions = 0;
	for (const FNotificationFrame* Frame : Frames)
	{
		MatchedVersions += Frame->GetVersion();
	}
	const QString Line = Waiting > 0 ? QStringLiteral("%1 more").arg(Waiting) : QString();
	if (More->text() != Line)
	{
		More->setText(Line);
	}
}

void FNotificationStack::Arrange()
{
	setVisible(!Frames.empty());
	const QRect Room = GetRoom();
	const int Width = FNotificationFrame::MaxWidth;
	int Total = More->text().isEmpty() ? 0 : More->sizeHint().height() + Gap;
	std::vector<QSize> Sizes;
	for (const FNotificationFrame* Frame : Frames)
	{
		Sizes.push_back(Frame->GetSize(parentWidget()->height() / 3));
		Total += Sizes.back().height() + (Sizes.size() > 1 ? Gap : 0);
	}
	setGeometry(Room.right() + 1 - Width, Room.bottom() + 1 - Total, Width, Total);
	QRegion Covered;
	int Bottom = Total;
	for (size_t Index = 0; Index < Frames.size(); ++Index)
	{
		const QSize Size = Sizes[Index];
		const QRect Place(Width - Size.width(), Bottom - Size.height(), Size.width(), Size.height());
		Bottom = Place.top() - Gap;
		Covered += Place;
		Frames[Index]->setGeometry(Place);
		if (Frames[Index]->isHidden())
		{
			Frames[Index]->show();
			Announce(*Frames[Index]);
			raise();
		}
	}
	More->setVisible(!More->text().isEmpty());
	More->setGeometry(0, 0, Width, More->sizeHint().height());
	Covered += More->isHidden() ? QRect() : More->geometry();
	// Between them what lies below can be seen and clicked.
	setMask(Covered);
}

int FNotificationStack::FindFocused() const
{
	const QWidget* Focused = QApplication::focusWidget();
	for (size_t Index = 0; Focused && Index < Frames.size(); ++Index)
	{
		if (Frames[Index] == Focused || Frames[Index]->isAncestorOf(Focused))
		{
			return static_cast<int>(Index);
		}
	}
	return -1;
}

void FNotificationStack::CycleFocus()
{
	const int Focused = FindFocused();
	if (Focused < 0)
	{
		FormerFocus = QApplication::focusWidget();
	}
	if (Focused + 1 < static_cast<int>(Frames.size()))
	{
		Frames[Focused + 1]->TakeFocus();
	}
	else if (Focused >= 0)
	{
		GiveFocusBack();
	}
}

void FNotificationStack::GiveFocusBack()
{
	if (FormerFocus && FormerFocus->isVisible())
	{
		FormerFocus->setFocus(Qt::ShortcutFocusReason);
	}
	else if (QWidget* Focused = QApplication::focusWidget())
	{
		Focused->clearFocus();
	}
	FormerFocus = nullptr;
}

bool FNotificationStack::eventFilter(QObject* Watched, QEvent* Event)
{
	if (Watched == parentWidget() && Event->type() == QEvent::Resize && !Frames.empty())
	{
		// At once, not a frame later: it would be seen to lag behind.
		Arrange();
	}
	return FPanel::eventFilter(Watched, Event);
}

void FNotificationStack::keyPressEvent(QKeyEvent* Event)
{
	if (Event->key() == Qt::Key_Escape && FindFocused() >= 0)
	{
		GiveFocusBack();
		return;
	}
	FPanel::keyPressEvent(Event);
}
