// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <memory>
#include <unordered_map>
#include <vector>

#include "CoreMinimal.h"
#include "Panels/Panel.h"
#include "Templates/SharedPointer.h"

class FArrangedWidget;
class FLeaf;
class SWidget;

/**
 * Shows a tree of the engine's widgets. The engine arranges, in units of Qt's; what can be seen of the tree (texts,
 * images, edit boxes, buttons, check boxes, combo boxes) is one Qt widget each, placed where it was arranged. What the
 * user does goes to the engine's application, which routes it, moves the focus and has boxes commit.
 *
 * The tree is held weakly: a host whose root has gone is empty.
 */
class FSlateHost : public FPanel
{
public:
	explicit FSlateHost(QWidget* Parent = nullptr);
	~FSlateHost() override;

	/** Shows this tree from the next Poll on; null for nothing. */
	void SetRoot(const TSharedPtr<SWidget>& InRoot);
	TSharedPtr<SWidget> GetRoot() const { return Root.Pin(); }

	void Poll() override;

	/** Assistive technology calls edit, check and combo boxes by the host's accessible name, if it has one, else by the
	 * text before them. */

	/** The size that the tree asks for, as of the last Poll. */
	QSize sizeHint() const override { return DesiredSize; }
	/** The Qt widget that shows one of the tree's, or null. */
	QWidget* FindLeaf(const SWidget& Widget) const;

private:
	void Place(const FArrangedWidget& Arranged, bool bParentEnabled);
	FLeaf* FindOrMakeLeaf(const TSharedRef<SWidget>& Widget);
	/** Hides what was not placed, and forgets what has gone. */
	void DropUnplaced();
	/** Stacks the leaves, and has the tab key visit them, as they follow each other in the tree. */
	void PutInOrder();
	/** Qt's focus follows the application's. */
	void FollowFocus();

	TWeakPtr<SWidget> Root;
	QSize DesiredSize;
	std::unordered_map<const SWidget*, std::unique_ptr<FLeaf>> Leaves;
	/** Counts the polls, so that what the last one did not place can be told. */
	unsigned Round = 0;
	/** Of this poll: the leaves in the order of the tree, the text that stood last, and whether any leaf is new. */
	std::vector<QWidget*> Order;
	QString LastText;
	bool bHasNewLeaf = false;
};
