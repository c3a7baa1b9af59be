// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <functional>

/** Stands between the names and the values of all rows; dragged, or moved by Left and Right. */
class FDetailsSplitter : public QWidget
{
public:
	explicit FDetailsSplitter(QWidget* Parent);

	/** Stands there from now on, in units of its parent. */
	void Place(int X, int Height);

	/** The user wants it there. */
	std::function<void(int X)> OnMoved;

protected:
	void mousePressEvent(QMouseEvent* Event) override;
	void mouseMoveEvent(QMouseEvent* Event) override;
	void keyPressEvent(QKeyEvent* Event) override;
	void focusInEvent(QFocusEvent* Event) override;
	void focusOutEvent(QFocusEvent* Event) override;
	void paintEvent(QPaintEvent* Event) override;

private:
	int GetX() const;

	/** Where it was taken hold of. */
	int GrabbedAt = 0;
};
