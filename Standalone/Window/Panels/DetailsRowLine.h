// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include "CoreMinimal.h"
#include "Panels/DetailsLine.h"

class FSlateHost;

/** A row of the details panel: its name, the splitter, the value, and an arrow that resets it where it is another one
 * than that of the class. */
class FDetailsRowLine : public FDetailsLine
{
public:
	explicit FDetailsRowLine(QWidget* Parent);

	void SetItem(const FDetailsItem& Item) override;
	int GetHeight() const override;
	/** Where the value's column begins. */
	void SetNameWidth(int Units);

	/** Brings the value up to date. @return whether it has got another height. */
	bool Poll();
	/** Whether Poll was called since the row got its value's widget and that its size. */
	bool IsPolled() const;

	FSlateHost& GetHost() const { return *Host; }
	/** Which of the value's widgets has the keyboard focus, from the root down; empty if none has. */
	std::vector<int> FindFocus() const;
	/** Gives the focus to the widget in that place, or one near it. */
	void SetFocus(const std::vector<int>& Place);

	/** The user wants the class's value. */
	std::function<void()> OnReset;

protected:
	void mousePressEvent(QMouseEvent* Event) override;
	void mouseDoubleClickEvent(QMouseEvent* Event) override;
	void paintEvent(QPaintEvent* Event) override;
	void resizeEvent(QResizeEvent* Event) override;

private:
	void PlaceValue();

	FSlateHost* Host;
	QToolButton* ResetButton;
	int NameWidth = 120;
	bool bReadOnly = false;
	/** The size in which the value was last polled. */
	QSize PolledSize;
	FNodeWidgetLayoutData Layout;
	TWeakPtr<IPropertyHandle> Handle;
};
