// Copyright Corvane. MIT License.
#include "SlateHost.h"

#include "Leaves/Leaf.h"

#include "FocusSync.h"
#include "Framework/Application/SlateApplication.h"
#include "Layout/ArrangedChildren.h"
#include "WindowText.h"
#include "Widgets/SWidget.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	QRectF GetRect(const FGeometry& Geometry)
	{
		return QRectF(Geometry.GetAbsolutePosition().X, Geometry.GetAbsolutePosition().Y, Geometry.GetLocalSize().X,
			Geometry.GetLocalSize().Y);
	}
}

FSlateHost::FSlateHost(QWidget* Parent) : FPanel(Parent) {}

FSlateHost::~FSlateHost() = default;

void FSlateHost::SetRoot(const TSharedPtr<SWidget>& InRoot)
{
	if (Root.Pin() != InRoot)
	{
		Root = InRoot;
		Leaves.clear();
	}
}

QWidget* FSlateHost::FindLeaf(const SWidget& Widget) const
{
	const auto Found = Leaves.find(&Widget);
	return Found == Leaves.end() ? nullptr : Found->second->GetQtWidget();
}

void FSlateHost::Poll()
{
	const FFocusSync::FFromEngine FromEngine;
	++Round;
	Order.clear();
	LastText = accessibleName();
	bHasNewLeaf = false;
	const TSharedPtr<SWidget> Pinned = Root.Pin();
	if (Pinned.IsValid() && Pinned->GetVisibility().IsVisible())
	{
		Pinned->SlatePrepass(1.0f);
		const FVector2D Desired = Pinned->GetDesiredSize();
		const QSize NewSize(qCeil(Desired.X), qCeil(Desired.Y));
		if (NewSize != DesiredSize)
		{
			DesiredSize = NewSize;
			updateGeometry();
		}
		const FGeometry Geometry = FGeometry::MakeRoot(
			FVector2D(static_cast<float>(width()), static_cast<float>(height())), FSlateLayoutTransform());
		Place(FArrangedWidget(Pinned.ToSharedRef(), Geometry), true);
	}
	DropUnplaced();
	if (bHasNewLeaf)
	{
		PutInOrder();
	}
	FollowFocus();
}

void FSlateHost::Place(const FArrangedWidget& Arranged, bool bParentEnabled)
{
	const bool bEnabled = bParentEnabled && Arranged.Widget->IsEnabled();
	if (FLeaf* Leaf = FindOrMakeLeaf(Arranged.Widget))
	{
		Leaf->Round = Round;
		Leaf->Update({GetRect(Arranged.Geometry), bEnabled, LastText});
		Order.push_back(Leaf->GetQtWidget());
	}
	static const FName Text("STextBlock");
	if (Arranged.Widget->GetType() == Text && accessibleName().isEmpty())
	{
		// Boxes have no name of their own: they are called what stands before them.
		LastText = FWindowText::ToQt(static_cast<const STextBlock&>(*Arranged.Widget).GetText());
	}
	FArrangedChildren Children(EVisibility::Visible);
	Arranged.Widget->ArrangeChildren(Arranged.Geometry, Children);
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		Place(Children[Index], bEnabled);
	}
}

FLeaf* FSlateHost::FindOrMakeLeaf(const TSharedRef<SWidget>& Widget)
{
	const auto Found = Leaves.find(&Widget.Get());
	// Another widget may stand at the address of one that has gone.
	if (Found != Leaves.end() && Found->second->GetWidget() == Widget)
	{
		return Found->second.get();
	}
	std::unique_ptr<FLeaf> Leaf = FLeaf::Make(Widget, this);
	if (!Leaf)
	{
		return nullptr;
	}
	bHasNewLeaf = true;
	std::unique_ptr<FLeaf>& Entry = Leaves[&Widget.Get()];
	Entry = std::move(Leaf);
	return Entry.get();
}

void FSlateHost::DropUnplaced()
{
	for (auto Iterator = Leaves.begin(); Iterator != Leaves.end();)
	{
		FLeaf& Leaf = *Iterator->second;
		if (Leaf.Round != Round)
		{
			Leaf.Hide();
		}
		Iterator = Leaf.GetWidget().IsValid() ? std::next(Iterator) : Leaves.erase(Iterator);
	}
}

void FSlateHost::PutInOrder()
{
	QWidget* Previous = nullptr;
	for (QWidget* Leaf : Order)
	{
		// What stands on a button lies above it.
		Leaf->raise();
		if (Leaf->focusPolicy() == Qt::NoFocus)
		{
			continue;
		}
		if (Previous)
		{
			QWidget::setTabOrder(Previous, Leaf);
		}
		Previous = Leaf;
	}
}

void FSlateHost::FollowFocus()
{
	const TSharedPtr<SWidget> Focused = FSlateApplication::Get().GetKeyboardFocusedWidget();
	QWidget* Wanted = Focused.IsValid() ? FindLeaf(*Focused) : nullptr;
	QWidget* Current = QApplication::focusWidget();
	if (Wanted && Wanted != Current && Wanted->isVisible())
	{
		// A list that is open has Qt's focus for the box that it belongs to.
		if (!QApplication::activePopupWidget())
		{
			Wanted->setFocus(Qt::OtherFocusReason);
		}
	}
	else if (!Wanted && Current && Current->parentWidget() == this)
	{
		Current->clearFocus();
	}
}
