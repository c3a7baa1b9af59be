// Copyright Corvane. MIT License.
#include "SearchBox.h"

#include "WindowImages.h"

FSearchBox::FSearchBox(const QString& Name, QWidget* Parent) : QLineEdit(Parent)
{
	setPlaceholderText(Name);
	setAccessibleName(Name);
	setClearButtonEnabled(true);
	addAction(FWindowImages::GetDrawn(QStringLiteral("search")), QLineEdit::LeadingPosition);
}

void FSearchBox::keyPressEvent(QKeyEvent* Event)
{
	if (Event->key() == Qt::Key_Escape && !text().isEmpty())
	{
		clear();
		return;
	}
	if (Event->key() != Qt::Key_Down || !List || List->model()->rowCount() == 0)
	{
		QLineEdit::keyPressEvent(Event);
		return;
	}
	if (!List->selectionModel()->hasSelection())
	{
		List->setCurrentIndex(List->model()->index(0, 0));
	}
	List->setFocus(Qt::TabFocusReason);
}
