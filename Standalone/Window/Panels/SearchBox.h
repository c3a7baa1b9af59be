// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

/** Where a list is searched: Escape empties it, the arrow down goes on to the list. */
class FSearchBox : public QLineEdit
{
public:
	/** @param Name what stands in it while it is empty, and what assistive technology calls it. */
	explicit FSearchBox(const QString& Name, QWidget* Parent = nullptr);

	/** The view that shows what was found; not owned. */
	void SetList(QAbstractItemView& InList) { List = &InList; }

protected:
	void keyPressEvent(QKeyEvent* Event) override;

private:
	QPointer<QAbstractItemView> List;
};
