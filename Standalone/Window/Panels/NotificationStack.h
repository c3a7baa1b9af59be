// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <functional>
#include <memory>
#include <vector>

#include "CoreMinimal.h"
#include "Panels/Panel.h"

class FNotificationFrame;
class SNotificationItem;
struct FWindowContext;

/**
 * The notifications, above all else in the lower right of the window: the newest at the bottom, older ones above it as
 * far as the window reaches; the others wait behind a line that counts them. F6 goes from one to the next and back to
 * where the focus was.
 */
class FNotificationStack : public FPanel
{
public:
	/** @param Window what it lies upon; its size is followed. */
	FNotificationStack(FWindowContext& InContext, QWidget& Window);

	void Poll() override;

	/** Those that are shown, from the bottom up. */
	const std::vector<FNotificationFrame*>& GetFrames() const { return Frames; }
	/** Moves the focus on as F6 does. */
	void CycleFocus();

	/** Tells assistive technology of a frame that appeared. */
	std::function<void(QWidget& Frame)> Announce;

protected:
	bool eventFilter(QObject* Watched, QEvent* Event) override;
	void keyPressEvent(QKeyEvent* Event) override;

private:
	/** Whether the frames show what there is room for. */
	bool IsUpToDate(const TArray<TSharedRef<SNotificationItem>>& Items);
	/** Makes, keeps and deletes frames, so that they do. */
	void Match(const TArray<TSharedRef<SNotificationItem>>& Items);
	std::unique_ptr<FNotificationFrame> Take(const TSharedRef<SNotificationItem>& Item);
	/** Places itself and the frames. */
	void Arrange();
	/** The part of the window that notifications may cover. */
	QRect GetRoom() const;
	int FindFocused() const;
	void GiveFocusBack();

	std::vector<FNotificationFrame*> Frames;
	/** Counts those that there is no room for. */
	QLabel* More;
	QPointer<QWidget> FormerFocus;
	/** What the frames were last matched to. */
	int32 NumMatched = 0;
	QRect MatchedRoom;
	unsigned MatchedVersions = 0;
};
