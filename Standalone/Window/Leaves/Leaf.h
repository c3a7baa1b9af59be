// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <memory>

#include "CoreMinimal.h"
#include "Layout/Geometry.h"
#include "Templates/SharedPointer.h"

class SWidget;

/** One Qt widget that shows one of the engine's. Lives in a host (see FSlateHost), as a child of its widget. */
class FLeaf
{
public:
	/** What a leaf is brought up to date with. */
	struct FPlace
	{
		/** Within the host, in units; positions between two units are rounded for the Qt widget. */
		QRectF Rect;
		/** Whether it and all above it can be used. */
		bool bEnabled;
		/** What assistive technology calls it where it has no text of its own. */
		QString Label;
	};

	/** Null for a widget that has nothing to show but its children. */
	static std::unique_ptr<FLeaf> Make(const TSharedRef<SWidget>& Widget, QWidget* Parent);

	FLeaf(const FLeaf&) = delete;
	FLeaf& operator=(const FLeaf&) = delete;
	virtual ~FLeaf();

	/** Takes over what the engine's widget shows at this moment. */
	void Update(const FPlace& Place);
	/** It is not seen, but keeps its place in the order of the tab key. */
	void Hide();

	QWidget* GetQtWidget() const { return Qt; }
	TSharedPtr<SWidget> GetWidget() const { return Widget.Pin(); }

	/** The poll in which it was last placed. */
	unsigned Round = 0;

protected:
	FLeaf(const TSharedRef<SWidget>& InWidget, QWidget* InQt);

	/** Where Qt's widget stands; by default where the engine's does. */
	virtual QRectF GetExtent(const SWidget& Shown, const FPlace& Place) const;

	/** The widget is there, and Qt's is where it shall be. */
	virtual void Show(SWidget& Shown, const FPlace& Place) = 0;

private:
	TWeakPtr<SWidget> Widget;
	QPointer<QWidget> Qt;
	QRect LastGeometry;
};
