// Copyright Corvane. MIT License.
#include "ListNote.h"

#include "WindowStyle.h"

FListNote::FListNote(QAbstractItemView& List) : QLabel(List.viewport())
{
	setAlignment(Qt::AlignCenter);
	setWordWrap(true);
	setTextFormat(Qt::PlainText);
	setMargin(8);
	setAttribute(Qt::WA_TransparentForMouseEvents);
	QPalette Dim = palette();
	Dim.setColor(QPalette::WindowText, FWindowStyle::GetColours().DimText);
	setPalette(Dim);
	List.viewport()->installEventFilter(this);
	hide();
}

void FListNote::Show(const QString& Text)
{
	if (text() != Text)
	{
		setText(Text);
	}
	setVisible(!Text.isEmpty());
	setGeometry(parentWidget()->rect());
}

bool FListNote::eventFilter(QObject* Object, QEvent* Event)
{
	if (Event->type() == QEvent::Resize)
	{
		setGeometry(parentWidget()->rect());
	}
	return QLabel::eventFilter(Object, Event);
}
