// Copyright Corvane. MIT License.
#include "Panels/NotificationFrame.h"

#include "Panels/NotificationText.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateBrush.h"
#include "ToolTipText.h"
#include "UserInput.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Notifications/SNotificationList.h"
#include "WindowImages.h"
#include "WindowStyle.h"
#include "WindowText.h"

namespace
{
	constexpr int Margin = 12;
	constexpr int Gap = 8;
	constexpr int MaxImage = 40;

	QFont GetFont(const FNotificationInfo& Info)
	{
		return Info.bUseLargeFont ? FWindowStyle::GetFont(FCoreStyle::GetDefaultFontStyle("Bold", 16))
								  : FWindowStyle::GetFont(FCoreStyle::GetDefaultFontStyle("Light", 12));
	}

	/** All buttons below a widget, shown or not, in the order of the tree. */
	void CollectButtons(const TSharedRef<SWidget>& Widget, std::vector<TSharedRef<SWidget>>& OutButtons)
	{
		if (Widget->GetType() == FName("SButton"))
		{
			OutButtons.push_back(Widget);
			return;
		}
		FChildren* Children = Widget->GetChildren();
		for (int32 Index = 0; Index < Children->Num(); ++Index)
		{
			CollectButtons(Children->GetChildAt(Index), OutButtons);
		}
	}

	QSize GetImageSize(const FSlateBrush* Brush)
	{
		const QSize Size = Brush ? QSize(qRound(Brush->ImageSize.X), qRound(Brush->ImageSize.Y)) : QSize();
		const bool bFits = Size.width() <= MaxImage && Size.height() <= MaxImage;
		return bFits ? Size : Size.scaled(MaxImage, MaxImage, Qt::KeepAspectRatio);
	}
}

FNotificationFrame::FNotificationFrame(const TSharedRef<SNotificationItem>& InItem, QWidget* Parent)
	: FPanel(Parent), Item(InItem)
{
	const FNotificationInfo& Info = InItem->GetInfo();
	auto* Row = new QHBoxLayout(this);
	Row->setContentsMargins(Margin, Margin, Margin, Margin);
	Row->setSpacing(Gap);
	const QSize Size = GetImageSize(Info.Image);
	const QPixmap Picture = FWindowImages::Get(Info.Image, Size, devicePixelRatioF());
	if (!Picture.isNull())
	{
		auto* Image = new QLabel(this);
		Image->setPixmap(Picture);
		Image->setFixedSize(Size);
		Row->addWidget(Image, 0, Qt::AlignTop);
		ImageWidth = Size.width() + Gap;
		ImageHeight = Size.height();
	}
	auto* Column = new QVBoxLayout;
	Column->setSpacing(Gap);
	Text = new FNotificationText(GetFont(Info), this);
	Column->addWidget(Text, 1);
	Column->addLayout(MakeButtons(*InItem));
	Row->addLayout(Column, 1);
	// Until it has its place.
	hide();
	Poll();
}

QLayout* FNotificationFrame::MakeButtons(const SNotificationItem& NotificationItem)
{
	auto* Row = new QHBoxLayout;
	Row->setSpacing(4);
	const TArray<FNotificationButtonInfo>& Infos = NotificationItem.GetInfo().ButtonDetails;
	for (const FNotificationButtonInfo& Info : Infos)
	{
		auto* Button = new QPushButton(FWindowText::ForCaption(Info.Text), this);
		Button->setAccessibleName(FWindowText::ToQt(Info.Text));
		Button->setToolTip(FToolTipText::Make(Info.ToolTip.ToString()));
		// Shrinks with a caption of any length.
		Button->setMinimumWidth(24);
		Button->setAutoDefault(true);
		const size_t Index = Buttons.size();
		connect(Button, &QPushButton::clicked, this, [this, Index] { Press(Index); });
		Row->addWidget(Button);
		Buttons.push_back(Button);
	}
	Row->addStretch(1);
	return Row;
}

void FNotificationFrame::Poll()
{
	const TSharedPtr<SNotificationItem> Shown = Item.Pin();
	if (!Shown.IsValid())
	{
		return;
	}
	if (Text->SetText(Shown->GetInfo().Text.Get().ToString()))
	{
		const QString Name = QString(Text->GetText()).replace(QChar::LineSeparator, u'\n');
		setAccessibleName(Name);
		setToolTip(FToolTipText::Make(Shown->GetInfo().Text.Get().ToString()));
		++Version;
	}
	RefreshButtons(*Shown);
}

void FNotificationFrame::RefreshButtons(const SNotificationItem& NotificationItem)
{
	for (size_t Index = 0; Index < Buttons.size(); ++Index)
	{
		const bool bVisible = NotificationItem.GetButtonVisibility(static_cast<int32>(Index)).IsVisible();
		if (Buttons[Index]->isHidden() == bVisible)
		{
			Buttons[Index]->setVisible(bVisible);
			++Version;
		}
	}
}

void FNotificationFrame::Press(size_t Index)
{
	const TSharedPtr<SNotificationItem> Pressed = Item.Pin();
	if (!Pressed.IsValid())
	{
		return;
	}
	std::vector<TSharedRef<SWidget>> Widgets;
	CollectButtons(Pressed.ToSharedRef(), Widgets);
	if (Index < Widgets.size())
	{
		// As by the engine's pointer: what has the focus commits first, and a button that went since does nothing.
		FUserInput::Click(Widgets[Index]);
	}
}

bool FNotificationFrame::Shows(const TSharedRef<SNotificationItem>& Other) const
{
	return Item.Pin() == Other;
}

QSize FNotificationFrame::GetSize(int Most) const
{
	int ButtonsWidth = 0;
	int ButtonsHeight = 0;
	for (const QPushButton* Button : Buttons)
	{
		if (!Button->isHidden())
		{
			ButtonsWidth += Button->sizeHint().width() + 4;
			ButtonsHeight = qMax(ButtonsHeight, Button->sizeHint().height() + Gap);
		}
	}
	const int Around = 2 * Margin + ImageWidth;
	const int Inner = qBound(100, qMax(Text->GetWidth(MaxWidth - Around), ButtonsWidth), MaxWidth - Around);
	const int Height = 2 * Margin + qMax(ImageHeight, Text->heightForWidth(Inner) + ButtonsHeight);
	// One line of the text at least, however low the window is.
	const int Least = 2 * Margin + Text->sizeHint().height() + ButtonsHeight;
	return QSize(Inner + Around, qMax(Least, qMin(Height, Most)));
}

void FNotificationFrame::TakeFocus()
{
	for (QPushButton* Button : Buttons)
	{
		if (!Button->isHidden())
		{
			Button->setFocus(Qt::ShortcutFocusReason);
			return;
		}
	}
	// Only so: the tab key passes it by, as there is nothing to do in it.
	setFocus(Qt::ShortcutFocusReason);
}

void FNotificationFrame::paintEvent(QPaintEvent*)
{
	const FWindowStyle::FColours& Colours = FWindowStyle::GetColours();
	QPainter Painter(this);
	Painter.setRenderHint(QPainter::Antialiasing);
	// Darker than any panel that it may lie upon, in a lighter line.
	Painter.setPen(QPen(hasFocus() ? Colours.Accent : Colours.DimText.darker(170), 1.0));
	Painter.setBrush(Colours.Base.darker(150));
	Painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 6.0, 6.0);
}
