// Copyright Corvane. MIT License.
#include "Panels/LevelToolBarView.h"

#include "Panels/ToolBarButton.h"
#include "ToolMenuEntry.h"
#include "ToolTipText.h"
#include "WindowContext.h"
#include "WindowImages.h"
#include "WindowStyle.h"
#include "WindowText.h"

namespace
{
	QIcon FindIcon(const FToolMenuEntry& Entry)
	{
		const QIcon Icon = FWindowImages::GetIcon(Entry.Icon.Get());
		// The editor's own buttons have drawings by their names.
		return Icon.isNull() ? FWindowImages::GetDrawn(FWindowText::ToQt(Entry.Name).toLower()) : Icon;
	}

	FString GetCaption(const FToolMenuEntry& Entry)
	{
		const FText& Label = Entry.Label.Get();
		return Label.IsEmpty() ? Entry.Name.ToString() : Label.ToString();
	}
}

bool FLevelToolBarView::FLook::operator==(const FLook& Other) const
{
	return Section == Other.Section && Name == Other.Name && IconStyle == Other.IconStyle &&
		IconBrush == Other.IconBrush && Label.Equals(Other.Label) && bIsCombo == Other.bIsCombo;
}

FLevelToolBarView::FLevelToolBarView(FWindowContext& InContext, QWidget* Parent) : FPanel(Parent), Context(InContext)
{
	auto* Layout = new QHBoxLayout(this);
	Layout->setContentsMargins(0, 0, 0, 0);
	// A bar of Qt's, as that has a menu for the buttons that a narrow window has no room for.
	Bar = new QToolBar(this);
	Bar->setAccessibleName(QStringLiteral("Toolbar"));
	Bar->setMovable(false);
	Bar->setIconSize(QSize(FToolBarButton::IconSize, FToolBarButton::IconSize));
	DressExtension();
	Layout->addWidget(Bar);
	setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void FLevelToolBarView::DressExtension()
{
	// Qt's own button for the rest is black on black.
	if (auto* Extension = Bar->findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button")))
	{
		QPixmap Arrows(16, 16);
		Arrows.fill(Qt::transparent);
		QPainter Painter(&Arrows);
		Painter.setRenderHint(QPainter::Antialiasing);
		Painter.setPen(QPen(FWindowStyle::GetColours().Text, 1.5));
		for (const qreal Left : {3.0, 8.0})
		{
			Painter.drawPolyline(QPolygonF({QPointF(Left, 4.0), QPointF(Left + 4.0, 8.0), QPointF(Left, 12.0)}));
		}
		Painter.end();
		Extension->setIcon(QIcon(Arrows));
		Extension->setToolTip(QStringLiteral("More buttons"));
		Extension->setAccessibleName(QStringLiteral("More buttons"));
		Extension->setFocusPolicy(Qt::StrongFocus);
	}
}

void FLevelToolBarView::Poll()
{
	const std::vector<FEditorMenus::FButton> Entries = FEditorMenus::GetButtons();
	std::vector<FLook> NewLooks = GetLooks(Entries);
	if (NewLooks != Looks)
	{
		Rebuild(Entries, std::move(NewLooks));
	}
	for (size_t Index = 0; Index < Entries.size(); ++Index)
	{
		Refresh(*Buttons[Index], *Entries[Index].Entry);
	}
}

std::vector<FLevelToolBarView::FLook> FLevelToolBarView::GetLooks(const std::vector<FEditorMenus::FButton>& Entries)
{
	std::vector<FLook> Result;
	Result.reserve(Entries.size());
	for (const FEditorMenus::FButton& Button : Entries)
	{
		const FToolMenuEntry& Entry = *Button.Entry;
		const FSlateIcon& Icon = Entry.Icon.Get();
		Result.push_back({Button.Section, Entry.Name, Icon.GetStyleSetName(), Icon.GetStyleName(), GetCaption(Entry),
			Entry.Type == EMultiBlockType::ToolBarComboButton});
	}
	return Result;
}

void FLevelToolBarView::Rebuild(const std::vector<FEditorMenus::FButton>& Entries, std::vector<FLook>&& NewLooks)
{
	// Its button may be going, and with it whoever fills the menu.
	CloseMenu();
	Bar->clear();
	for (FToolBarButton* Button : Buttons)
	{
		Button->deleteLater();
	}
	Buttons.clear();
	Looks = std::move(NewLooks);
	for (size_t Index = 0; Index < Looks.size(); ++Index)
	{
		if (Index > 0 && Looks[Index].Section != Looks[Index - 1].Section)
		{
			Bar->addSeparator();
		}
		FToolBarButton* Button = MakeButton(Entries[Index], Looks[Index]);
		Buttons.push_back(Button);
		// The action stands for the button in the menu of those that the window is too narrow for.
		QAction* Action = Bar->addWidget(Button);
		Action->setText(Button->text());
		Action->setIcon(Button->icon());
		connect(Action, &QAction::triggered, this, [this, Index] { Press(Index); });
		connect(Button, &QToolButton::clicked, this, [this, Index] { Press(Index); });
	}
}

FToolBarButton* FLevelToolBarView::MakeButton(const FEditorMenus::FButton& Entry, const FLook& Look)
{
	auto* Button = new FToolBarButton(FWindowText::ForCaption(Look.Label), FindIcon(*Entry.Entry), Look.bIsCombo, Bar);
	Button->setAccessibleName(FWindowText::ToQt(Look.Label));
	Button->setObjectName(FWindowText::ToQt(Look.Name));
	return Button;
}

void FLevelToolBarView::Refresh(FToolBarButton& Button, const FToolMenuEntry& Entry)
{
	const FUIAction* Action = Entry.Action.GetUIAction();
	Button.setEnabled(!Action || Action->CanExecute());
	const QString Tip = FToolTipText::Make(Entry.ToolTip.Get().ToString());
	if (Button.toolTip() != Tip)
	{
		Button.setToolTip(Tip);
	}
}

void FLevelToolBarView::Press(size_t Index)
{
	// Between two polls the toolbar may have changed.
	const std::vector<FEditorMenus::FButton> Entries = FEditorMenus::GetButtons();
	if (GetLooks(Entries) != Looks || Index >= Entries.size())
	{
		return;
	}
	if (Looks[Index].bIsCombo)
	{
		OpenMenu(Index);
		return;
	}
	if (const FUIAction* Action = Entries[Index].Entry->Action.GetUIAction())
	{
		// A copy: what it does may change the toolbar.
		FUIAction(*Action).Execute();
	}
}

void FLevelToolBarView::OpenMenu(size_t Index)
{
	CloseMenu();
	std::string Error;
	const TSharedPtr<const FMultiBox> Box = FEditorMenus::Open(Looks[Index].Label, Error);
	if (!Box.IsValid())
	{
		Context.Say(QString::fromStdString(Error));
		return;
	}
	const FToolBarButton& Button = *Buttons[Index];
	auto* Opened = new FMultiBoxMenu(Box.ToSharedRef(), this);
	Opened->setAccessibleName(Button.accessibleName());
	Opened->OnRefused = Context.Say;
	Menu = Opened;
	// Below the bar's own button if this one found no room.
	const bool bShown = Button.isVisible();
	Opened->OpenAt(bShown ? Button.mapToGlobal(QPoint(0, Button.height())) : mapToGlobal(rect().bottomRight()));
}

QToolButton* FLevelToolBarView::FindButton(const QString& Caption) const
{
	for (FToolBarButton* Button : Buttons)
	{
		if (Button->accessibleName() == Caption)
		{
			return Button;
		}
	}
	return nullptr;
}

QMenu* FLevelToolBarView::GetMenu() const
{
	return Menu && Menu->isVisible() ? Menu : nullptr;
}

void FLevelToolBarView::CloseMenu()
{
	if (Menu)
	{
		Menu->Abandon();
	}
}
