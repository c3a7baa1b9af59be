// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

/** Says in the middle of a list why it is empty. */
class FListNote : public QLabel
{
public:
	/** Lies over the list, which keeps the mouse. */
	explicit FListNote(QAbstractItemView& List);

	/** An empty text hides it. */
	void Show(const QString& Text);

protected:
	bool eventFilter(QObject* Object, QEvent* Event) override;
};
