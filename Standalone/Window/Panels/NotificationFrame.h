// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <vector>

#include "CoreMinimal.h"
#include "Panels/Panel.h"

class FNotificationText;
class SButton;
class SNotificationItem;

/** One notification: image, text and the buttons of its present state. Never takes the focus by itself. */
class FNotificationFrame : public FPanel
{
public:
	/** Units. */
	static constexpr int MaxWidth = 360;

	/** The item is held weakly. */
	FNotificationFrame(const TSharedRef<SNotificationItem>& InItem, QWidget* Parent);

	void Poll() override;

	bool Shows(const TSharedRef<SNotificationItem>& Other) const;
	/** Grows with each change of what it shows, and so maybe of its size. */
	unsigned GetVersion() const { return Version; }
	/** What it needs, at most Most high; the buttons are always within. */
	QSize GetSize(int Most) const;
	/** Gives the focus to its first button, or takes it itself without one. */
	void TakeFocus();

protected:
	void paintEvent(QPaintEvent* Event) override;

private:
	QLayout* MakeButtons(const SNotificationItem& NotificationItem);
	void RefreshButtons(const SNotificationItem& NotificationItem);
	void Press(size_t Index);

	TWeakPtr<SNotificationItem> Item;
	FNotificationText* Text;
	std::vector<QPushButton*> Buttons;
	unsigned Version = 0;
	int ImageWidth = 0;
	int ImageHeight = 0;
};
