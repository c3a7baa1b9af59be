// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <functional>

#include "Panels/DetailsItem.h"

/**
 * A line of the details panel: an arrow head if there is something below it, and its name. By itself that of a
 * category, a group or an advanced part, which a click anywhere opens and closes; Left, Right and Enter do as well.
 */
class FDetailsLine : public QWidget
{
public:
	explicit FDetailsLine(QWidget* Parent);

	/** Shows this item from now on. */
	virtual void SetItem(const FDetailsItem& Item);
	void SetOpen(bool bInOpen);
	bool IsOpen() const { return bOpen; }
	const QString& GetName() const { return Name; }

	virtual int GetHeight() const;

	/** The user wants it open or closed. */
	std::function<void(bool)> OnOpen;
	/** The user goes so many lines down; up if below 0. */
	std::function<void(int)> OnStep;

protected:
	void mousePressEvent(QMouseEvent* Event) override;
	void keyPressEvent(QKeyEvent* Event) override;
	void focusInEvent(QFocusEvent* Event) override;
	void focusOutEvent(QFocusEvent* Event) override;
	void paintEvent(QPaintEvent* Event) override;

	/** Where the arrow head is, whether there is one or not. */
	QRect GetArrowRect() const;
	void PaintArrow(QPainter& Painter) const;
	/** The frame of what has the focus. */
	void PaintFocus(QPainter& Painter) const;
	void Toggle();
	bool HasChildren() const { return bHasChildren; }

private:
	FDetailsItem::EKind Kind = FDetailsItem::EKind::Category;
	QString Name;
	int Depth = 0;
	bool bHasChildren = false;
	bool bOpen = false;
};
