// Copyright Corvane. MIT License.
#pragma once

#include "Input/Events.h"
#include "Input/Reply.h"
#include "Layout/ArrangedChildren.h"
#include "Layout/Children.h"
#include "Layout/Geometry.h"
#include "Layout/Visibility.h"
#include "Misc/Attribute.h"
#include "UObject/NameTypes.h"

/**
 * The base of all widgets. Widgets are made with SNew, are always shared, and hold their parents weakly.
 *
 * Layout takes two passes: SlatePrepass works out desired sizes from the leaves up, ArrangeChildren places them from
 * the root down. A collapsed widget takes no part in either. Text that wraps has a height that depends on its width,
 * which is known only on the way down; so the first pass carries the greatest possible width along on its way to the
 * leaves (the width cap: a box's override or maximum, less the paddings), and such text wants the height that it has at
 * that width. Where nothing limits the width, text does not wrap.
 *
 * Event handlers get no useful geometry with key, character and focus events: geometries are not kept from pass to
 * pass.
 */
class SLATECORE_API SWidget : public TSharedFromThis<SWidget>
{
public:
	SWidget() = default;
	virtual ~SWidget() = default;
	SWidget(const SWidget&) = delete;
	SWidget& operator=(const SWidget&) = delete;

	/** Takes over what every widget can be told at its creation. */
	void SWidgetConstruct(
		const ANSICHAR* InType, const TAttribute<EVisibility>& InVisibility, const TAttribute<bool>& InEnabledState);

	virtual FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent);
	virtual void OnFocusLost(const FFocusEvent& InFocusEvent);
	virtual FReply OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent);
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent);
	virtual FReply OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent);
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent);
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent);
	virtual void OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent);
	virtual bool SupportsKeyboardFocus() const;
	bool HasKeyboardFocus() const;

	/** Works out the desired sizes of this widget and all below it. */
	void SlatePrepass(float InLayoutScaleMultiplier);
	/** As the last prepass found it, without the padding of the slot. */
	const FVector2D& GetDesiredSize() const { return DesiredSize; }
	/** Places the children within a geometry, collapsed ones left out. */
	void ArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const;
	virtual FChildren* GetChildren() = 0;

	EVisibility GetVisibility() const { return Visibility.Get(); }
	virtual void SetVisibility(const TAttribute<EVisibility>& InVisibility);
	/** Its own state; a disabled parent disables it as well. */
	bool IsEnabled() const { return EnabledState.Get(); }
	void SetEnabled(const TAttribute<bool>& InEnabledState);

	/** The class's name with its prefix. */
	FName GetType() const { return TypeOfWidget; }
	FString GetTypeAsString() const { return TypeOfWidget.ToString(); }

	/** Null for a root. */
	TSharedPtr<SWidget> GetParentWidget() const { return ParentWidget.Pin(); }
	/** For slots: whose child this is from now on. */
	void AssignParentWidget(const TSharedRef<SWidget>& InParent);
	/** For slots: this widget left that parent; does nothing when it has another one meanwhile. */
	void ForgetParentWidget(const SWidget& FormerParent);

protected:
	/** Without the padding of the slot; the children's desired sizes are known. */
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const = 0;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const = 0;
	/** The greatest width that the child can get when this widget gets at most OwnWidthCap. */
	virtual float ComputeChildWidthCap(int32 ChildIndex, float OwnWidthCap) const;
	/** During ComputeDesiredSize: the greatest width that this widget can get. */
	float GetWidthCap() const { return WidthCap; }

private:
	void PrepassWithin(float LayoutScaleMultiplier, float InWidthCap);

	FName TypeOfWidget;
	TWeakPtr<SWidget> ParentWidget;
	TAttribute<EVisibility> Visibility;
	TAttribute<bool> EnabledState = true;
	FVector2D DesiredSize;
	float WidthCap = 0.0f;
};
