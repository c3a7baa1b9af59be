// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include "CoreMinimal.h"

/**
 * A notification's text, wrapped to the width and cut off with an ellipsis where it is higher than the widget. Of a
 * text of any length only the beginning is looked at.
 */
class FNotificationText : public QWidget
{
public:
	explicit FNotificationText(const QFont& Font, QWidget* Parent = nullptr);

	/** Costs next to nothing if it shows this text already. @return whether another text is shown now. */
	bool SetText(const FString& Text);
	/** As shown, but for what the widget has no room for. */
	const QString& GetText() const { return Text; }

	/** The width that no line needs to be broken for, at most Most. */
	int GetWidth(int Most) const;

	bool hasHeightForWidth() const override { return true; }
	int heightForWidth(int Width) const override;
	QSize sizeHint() const override;

protected:
	void paintEvent(QPaintEvent* Event) override;

private:
	/** Breaks the text into lines of that width. @return their height. */
	qreal LayOut(QTextLayout& Layout, qreal Width) const;

	QString Text;
	/** Of the text that it was made of, to tell one that differs further back. */
	int32 FullLength = -1;
};
