// Copyright Corvane. MIT License.
#include "Panels/MultiBoxMenu.h"

#include "EditorProxyStyle.h"
#include "Panels/PanelText.h"
#include "ToolTipText.h"
#include "WindowImages.h"
#include "WindowText.h"

namespace
{
	/** The window's own, but that menus which are too high scroll instead of growing sideways. */
	class FScrolledMenuStyle : public FEditorProxyStyle
	{
	public:
		int styleHint(
			StyleHint Hint, const QStyleOption* Option, const QWidget* Widget, QStyleHintReturn* Return) const override
		{
			return Hint == SH_Menu_Scrollable ? 1 : FEditorProxyStyle::styleHint(Hint, Option, Widget, Return);
		}

		static QStyle* Get()
		{
			static const QPointer<QStyle> Style = []
			{
				auto* Made = new FScrolledMenuStyle;
				Made->setParent(QCoreApplication::instance());
				return Made;
			}();
			return Style;
		}
	};
}

FMultiBoxMenu::FMultiBoxMenu(const TSharedRef<const FMultiBox>& InBox, QWidget* Parent) : QMenu(Parent), Box(InBox)
{
	setToolTipsVisible(true);
	setStyle(FScrolledMenuStyle::Get());
	if (Box->MaxHeight > 0)
	{
		setMaximumHeight(static_cast<int>(qMin(Box->MaxHeight, static_cast<uint32>(QWIDGETSIZE_MAX))));
	}
	if (Box->bIsSearchable)
	{
		AddSearch();
	}
	for (const FMultiBoxSection& Section : Box->Sections)
	{
		AddSection(Section);
	}
	Nothing = addAction(QStringLiteral("No matching entries"));
	Nothing->setEnabled(false);
	Nothing->setVisible(false);
	Refresh();
}

void FMultiBoxMenu::OpenAt(const QPoint& Corner)
{
	popup(Corner);
	// Qt has moved it to where a menu as high as sizeHint says would fit.
	const int Bottom = screen()->availableGeometry().bottom();
	Place = IsTooHigh() ? QPoint(pos().x(), qMax(0, qMin(Corner.y(), Bottom - height()))) : pos();
	move(Place);
}

QSize FMultiBoxMenu::sizeHint() const
{
	const QSize Hint = QMenu::sizeHint();
	// Qt scrolls only what is higher than the screen.
	return IsTooHigh() ? QSize(Hint.width(), Hint.height() + QGuiApplication::primaryScreen()->virtualSize().height())
					   : Hint;
}

void FMultiBoxMenu::KeepInSight()
{
	if (isVisible() && IsTooHigh())
	{
		setActiveAction(activeAction());
		// Scrolling may move it.
		move(Place);
	}
}

void FMultiBoxMenu::AddSearch()
{
	Search = new QLineEdit(this);
	Search->setAccessibleName(QStringLiteral("Search the menu"));
	Search->setPlaceholderText(QStringLiteral("Search"));
	Search->installEventFilter(this);
	SearchAction = new QWidgetAction(this);
	SearchAction->setDefaultWidget(Search);
	// There is nothing to see of it before something is typed.
	SearchAction->setVisible(false);
	addAction(SearchAction);
	connect(Search, &QLineEdit::textChanged, this, [this](const QString& Text) { Filter(Text); });
}

void FMultiBoxMenu::AddSection(const FMultiBoxSection& Section)
{
	FSection Added;
	const QString Heading = FPanelText::OneLine(Section.Heading.Get().ToString());
	Added.Heading = Heading.isEmpty() ? addSeparator() : addSection(Heading);
	for (const TSharedRef<const FMultiBlock>& Block : Section.Blocks)
	{
		Added.Entries.push_back(AddEntry(Block));
	}
	Sections.push_back(std::move(Added));
}

FMultiBoxMenu::FEntry FMultiBoxMenu::AddEntry(const TSharedRef<const FMultiBlock>& Block)
{
	QAction* Action = addAction(FWindowText::ForCaption(Block->GetLabel()));
	Action->setIcon(FWindowImages::GetIcon(Block->GetIcon()));
	Action->setIconVisibleInMenu(true);
	Action->setToolTip(FToolTipText::Make(Block->GetToolTip().ToString()));
	Action->setCheckable(Block->IsCheckable());
	const TWeakPtr<const FMultiBlock> Weak = Block;
	connect(Action, &QAction::triggered, this, [this, Weak] { Execute(Weak); });
	return {Action, Weak};
}

void FMultiBoxMenu::Refresh()
{
	for (const FSection& Section : Sections)
	{
		for (const FEntry& Entry : Section.Entries)
		{
			const TSharedPtr<const FMultiBlock> Block = Entry.Block.Pin();
			Entry.Action->setEnabled(Block.IsValid() && Block->CanExecute());
			Entry.Action->setChecked(Block.IsValid() && Block->GetCheckState() == ECheckBoxState::Checked);
		}
	}
}

void FMultiBoxMenu::Filter(const QString& Text)
{
	// What is left must not shrink the menu under the pointer.
	setMinimumWidth(width());
	if (isVisible() && IsTooHigh())
	{
		// Back to the top, as what is left may need no scrolling.
		QKeyEvent Home(QEvent::KeyPress, Qt::Key_Home, Qt::NoModifier);
		QMenu::keyPressEvent(&Home);
	}
	if (SearchAction)
	{
		SearchAction->setVisible(!Text.isEmpty());
		// The menu only shows it by itself.
		Search->setVisible(!Text.isEmpty());
	}
	const QString Wanted = Text.trimmed();
	bool bAny = false;
	for (const FSection& Section : Sections)
	{
		bool bAnyHere = false;
		for (const FEntry& Entry : Section.Entries)
		{
			const QString Label = Entry.Action->text().replace(QStringLiteral("&&"), QStringLiteral("&"));
			const bool bMatches = Label.contains(Wanted, Qt::CaseInsensitive);
			Entry.Action->setVisible(bMatches);
			bAnyHere = bAnyHere || bMatches;
		}
		Section.Heading->setVisible(bAnyHere);
		bAny = bAny || bAnyHere;
	}
	Nothing->setVisible(!bAny);
	// So that Enter chooses it.
	setActiveAction(Wanted.isEmpty() ? nullptr : FindFirstMatch());
	if (isVisible())
	{
		move(Place);
	}
	if (Text.isEmpty())
	{
		setFocus();
	}
}

QAction* FMultiBoxMenu::FindFirstMatch() const
{
	for (const FSection& Section : Sections)
	{
		for (const FEntry& Entry : Section.Entries)
		{
			if (Entry.Action->isVisible() && Entry.Action->isEnabled())
			{
				return Entry.Action;
			}
		}
	}
	return nullptr;
}

void FMultiBoxMenu::Abandon()
{
	close();
	Box.Reset();
}

void FMultiBoxMenu::Execute(const TWeakPtr<const FMultiBlock>& Block)
{
	const TSharedPtr<const FMultiBlock> Chosen = Block.Pin();
	if (Chosen.IsValid() && !Chosen->Execute())
	{
		OnRefused(QStringLiteral("\"%1\" does nothing").arg(FWindowText::ToQt(Chosen->GetLabel())));
	}
}

bool FMultiBoxMenu::ChooseAndStay(QAction* Action)
{
	if (!Box.IsValid() || Box->bShouldCloseWindowAfterMenuSelection || !Action || Action->isSeparator() ||
		Action == SearchAction)
	{
		return false;
	}
	if (Action->isEnabled())
	{
		Action->trigger();
		Refresh();
	}
	return true;
}

bool FMultiBoxMenu::IsSearchKey(const QKeyEvent& Event) const
{
	const bool bPlain = (Event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
	const QString Typed = Event.text();
	// A blank alone chooses, as in any menu.
	return Search && bPlain && !Typed.isEmpty() && Typed[0].isPrint() &&
		(Typed != QStringLiteral(" ") || !Search->text().isEmpty());
}

void FMultiBoxMenu::keyPressEvent(QKeyEvent* Event)
{
	const int Key = Event->key();
	const bool bSearching = Search && !Search->text().isEmpty();
	if (Key == Qt::Key_Escape && bSearching)
	{
		Search->clear();
	}
	else if (Key == Qt::Key_Backspace && bSearching)
	{
		Search->backspace();
	}
	else if (IsSearchKey(*Event))
	{
		const QString Typed = Event->text();
		SearchAction->setVisible(true);
		Search->setFocus();
		Search->insert(Typed);
	}
	else if ((Key == Qt::Key_Return || Key == Qt::Key_Enter || Key == Qt::Key_Space) && ChooseAndStay(activeAction()))
	{
		Event->accept();
	}
	else
	{
		QMenu::keyPressEvent(Event);
		KeepInSight();
	}
}

void FMultiBoxMenu::mouseReleaseEvent(QMouseEvent* Event)
{
	if (!ChooseAndStay(actionAt(Event->position().toPoint())))
	{
		QMenu::mouseReleaseEvent(Event);
	}
}

void FMultiBoxMenu::hideEvent(QHideEvent* Event)
{
	QMenu::hideEvent(Event);
	// Not now: what was chosen is carried out after the menu has gone.
	QMetaObject::invokeMethod(
		this,
		[this]
		{
			Box.Reset();
			deleteLater();
		},
		Qt::QueuedConnection);
}

bool FMultiBoxMenu::eventFilter(QObject* Watched, QEvent* Event)
{
	if (Watched == Search && Event->type() == QEvent::KeyPress)
	{
		auto* KeyEvent = static_cast<QKeyEvent*>(Event);
		switch (KeyEvent->key())
		{
			// The menu's keys, wherever the text cursor is.
			case Qt::Key_Up:
			case Qt::Key_Down:
			case Qt::Key_Return:
			case Qt::Key_Enter:
			case Qt::Key_Escape:
				keyPressEvent(KeyEvent);
				return true;
			default:
				break;
		}
	}
	return QMenu::eventFilter(Watched, Event);
}
