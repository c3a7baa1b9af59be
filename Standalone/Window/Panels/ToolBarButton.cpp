// Copyright Corvane. MIT License.
#include "Panels/ToolBarButton.h"

namespace
{
	constexpr int LeastWidth = 64;
	constexpr int MostWidth = 160;
}

FToolBarButton::FToolBarButton(const QString& Caption, const QIcon& Icon, bool bInOpensMenu, QWidget* Parent)
	: QToolButton(Parent), bOpensMenu(bInOpensMenu)
{
	setText(Caption);
	setIcon(Icon);
	setIconSize(QSize(IconSize, IconSize));
	setToolButtonStyle(Icon.isNull() ? Qt::ToolButtonTextOnly : Qt::ToolButtonTextUnderIcon);
	setAutoRaise(true);
	// By a click too: an edit box that has the focus commits before the button does anything.
	setFocusPolicy(Qt::StrongFocus);
	setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
}

QSize FToolBarButton::sizeHint() const
{
	const QSize Hint = QToolButton::sizeHint();
	return QSize(qBound(LeastWidth, Hint.width(), MostWidth), Hint.height());
}

void FToolBarButton::keyPressEvent(QKeyEvent* Event)
{
	const int Key = Event->key();
	if (Key == Qt::Key_Return || Key == Qt::Key_Enter || (bOpensMenu && Key == Qt::Key_Down))
	{
		click();
		return;
	}
	QToolButton::keyPressEvent(Event);
}

void FToolBarButton::initStyleOption(QStyleOptionToolButton* Option) const
{
	QToolButton::initStyleOption(Option);
	if (bOpensMenu)
	{
		Option->features |= QStyleOptionToolButton::HasMenu;
	}
	Option->text = Option->fontMetrics.elidedText(Option->text, Qt::ElideRight, width() - 8, Qt::TextShowMnemonic);
}
