// Copyright Corvane. MIT License.
#include "DetailsRowLine.h"

#include <algorithm>

#include "Panels/DetailsReset.h"
#include "SlateHost.h"
#include "WindowImages.h"
#include "WindowStyle.h"

#include "Framework/Application/SlateApplication.h"
#include "PropertyHandle.h"
#include "Widgets/SWidget.h"

namespace
{
	constexpr int MinHeight = 26;
	/** Above and below the value. */
	constexpr int Margin = 2;
	constexpr int Gap = 6;
	constexpr int ResetSize = 18;
	constexpr int FontPoints = 9;
}

FDetailsRowLine::FDetailsRowLine(QWidget* Parent)
	: FDetailsLine(Parent), Host(new FSlateHost(this)), ResetButton(new QToolButton(this))
{
	ResetButton->setAutoRaise(true);
	ResetButton->setIcon(FWindowImages::GetDrawn(QStringLiteral("reset")));
	ResetButton->setIconSize(QSize(14, 14));
	ResetButton->setFocusPolicy(Qt::StrongFocus);
	ResetButton->setToolTip(QStringLiteral("Reset to the default value"));
	ResetButton->hide();
	connect(ResetButton, &QToolButton::clicked, this, [this] { OnReset(); });
}

void FDetailsRowLine::SetItem(const FDetailsItem& Item)
{
	FDetailsLine::SetItem(Item);
	ResetButton->setAccessibleName(QStringLiteral("Reset ") + Item.Name);
	const QString Path = Item.Path.isEmpty() ? QString() : QStringLiteral("<br>") + Item.Path.toHtmlEscaped();
	setToolTip(
		QStringLiteral("<p style='white-space:pre'>") + Item.Name.toHtmlEscaped() + Path + QStringLiteral("</p>"));
	bReadOnly = Item.bReadOnly;
	Layout = Item.Layout;
	Handle = Item.Handle;
	if (Host->GetRoot() != Item.Value.Pin())
	{
		PolledSize = QSize();
	}
	Host->SetRoot(Item.Value.Pin());
	Host->setAccessibleName(Item.Name);
	Host->setVisible(Item.Value.IsValid());
}

int FDetailsRowLine::GetHeight() const
{
	return std::max(MinHeight, Host->isHidden() ? 0 : Host->sizeHint().height() + 2 * Margin + 1);
}

bool FDetailsRowLine::IsPolled() const
{
	return Host->isHidden() || Host->size() == PolledSize;
}

void FDetailsRowLine::SetNameWidth(int Units)
{
	if (NameWidth != Units)
	{
		NameWidth = Units;
		PlaceValue();
		update();
	}
}

bool FDetailsRowLine::Poll()
{
	const int Before = GetHeight();
	Host->Poll();
	PlaceValue();
	if (Host->size() != PolledSize)
	{
		PolledSize = Host->size();
		Host->Poll();
	}
	const TSharedPtr<IPropertyHandle> Pinned = Handle.Pin();
	ResetButton->setVisible(Pinned.IsValid() && FDetailsReset::CanReset(*Pinned));
	return GetHeight() != Before;
}

void FDetailsRowLine::PlaceValue()
{
	const int Left = NameWidth + Gap;
	const int Room = std::max(0, width() - Left - ResetSize - Gap);
	const QSize Wanted = Host->sizeHint();
	const bool bFill = Layout.HorizontalAlignment == HAlign_Fill;
	int Width = bFill ? Room : Wanted.width();
	Width = Layout.MaxWidth.IsSet() ? std::min(Width, qRound(Layout.MaxWidth.GetValue())) : Width;
	Width = Layout.MinWidth.IsSet() ? std::max(Width, qRound(Layout.MinWidth.GetValue())) : Width;
	// Where there is less room than it wants, a value's end is worth more than its width.
	Width = std::min(Width, Room);
	const int Height = std::min(std::max(0, height() - 1), std::max(0, Wanted.height()));
	const int Spare = std::max(0, height() - 1 - 2 * Margin - Height);
	const bool bTop = Layout.VerticalAlignment == VAlign_Top;
	const int Top = Margin + (bTop ? 0 : Layout.VerticalAlignment == VAlign_Bottom ? Spare : Spare / 2);
	Host->setGeometry(Left, Top, Width, Height);
	ResetButton->setGeometry(Left + Width + 2, (height() - 1 - ResetSize) / 2, ResetSize, ResetSize);
}

void FDetailsRowLine::resizeEvent(QResizeEvent*)
{
	PlaceValue();
}

void FDetailsRowLine::mousePressEvent(QMouseEvent* Event)
{
	if (Event->button() == Qt::LeftButton && GetArrowRect().contains(Event->position().toPoint()))
	{
		Toggle();
	}
}

void FDetailsRowLine::mouseDoubleClickEvent(QMouseEvent* Event)
{
	if (Event->button() == Qt::LeftButton)
	{
		Toggle();
	}
}

std::vector<int> FDetailsRowLine::FindFocus() const
{
	std::vector<int> Place;
	const TSharedPtr<SWidget> Root = Host->GetRoot();
	TSharedPtr<SWidget> Widget = FSlateApplication::Get().GetKeyboardFocusedWidget();
	while (Widget.IsValid() && Widget != Root)
	{
		const TSharedPtr<SWidget> Parent = Widget->GetParentWidget();
		FChildren* Children = Parent.IsValid() ? Parent->GetChildren() : nullptr;
		int32 Index = Children ? Children->Num() - 1 : 0;
		while (Index > 0 && &*Children->GetChildAt(Index) != Widget.Get())
		{
			--Index;
		}
		Place.insert(Place.begin(), Index);
		Widget = Parent;
	}
	return Root.IsValid() && Widget == Root ? Place : std::vector<int>();
}

void FDetailsRowLine::SetFocus(const std::vector<int>& Place)
{
	TSharedPtr<SWidget> Widget = Host->GetRoot();
	for (const int Index : Place)
	{
		FChildren* Children = Widget.IsValid() ? Widget->GetChildren() : nullptr;
		if (Children && Index < Children->Num())
		{
			Widget = Children->GetChildAt(Index);
		}
	}
	QWidget* Leaf = Widget.IsValid() ? Host->FindLeaf(*Widget) : nullptr;
	(Leaf ? Leaf : static_cast<QWidget*>(this))->setFocus(Qt::OtherFocusReason);
}

void FDetailsRowLine::paintEvent(QPaintEvent*)
{
	const FWindowStyle::FColours& Colours = FWindowStyle::GetColours();
	QPainter Painter(this);
	Painter.fillRect(rect(), Colours.Window);
	Painter.fillRect(QRect(0, height() - 1, width(), 1), Colours.Window.darker(125));
	Painter.fillRect(QRect(NameWidth, 0, 1, height() - 1), Colours.Window.darker(125));
	PaintArrow(Painter);
	Painter.setFont(FWindowStyle::GetFont(FontPoints));
	Painter.setPen(bReadOnly ? Colours.DimText : Colours.Text);
	const int Left = GetArrowRect().right() + 4;
	const QRect Room(Left, 0, std::max(0, NameWidth - Left - 4), height() - 1);
	Painter.drawText(Room, Qt::AlignVCenter | Qt::TextSingleLine,
		Painter.fontMetrics().elidedText(GetName(), Qt::ElideRight, Room.width()));
	PaintFocus(Painter);
}
