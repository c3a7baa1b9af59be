// Copyright Corvane. MIT License.
#include "Leaves/Leaf.h"

#include "Leaves/ButtonLeaf.h"
#include "Leaves/CheckLeaf.h"
#include "Leaves/ComboLeaf.h"
#include "Leaves/EditLeaf.h"
#include "Leaves/ImageLeaf.h"
#include "Leaves/TextLeaf.h"

#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	/** Edges are rounded, not sizes: what touches in the engine's layout touches on the screen. */
	QRect ToPixels(const QRectF& Rect)
	{
		return QRect(QPoint(qRound(Rect.left()), qRound(Rect.top())),
			QPoint(qRound(Rect.right()) - 1, qRound(Rect.bottom()) - 1));
	}
}

std::unique_ptr<FLeaf> FLeaf::Make(const TSharedRef<SWidget>& Widget, QWidget* Parent)
{
	static const FName Text("STextBlock");
	static const FName Image("SImage");
	static const FName Edit("SEditableTextBox");
	static const FName Button("SButton");
	static const FName Check("SCheckBox");
	const FName Type = Widget->GetType();
	if (Type == Text)
	{
		return std::make_unique<FTextLeaf>(StaticCastSharedRef<STextBlock>(Widget), Parent);
	}
	if (Type == Image)
	{
		return std::make_unique<FImageLeaf>(StaticCastSharedRef<SImage>(Widget), Parent);
	}
	if (Type == Edit)
	{
		return std::make_unique<FEditLeaf>(StaticCastSharedRef<SEditableTextBox>(Widget), Parent);
	}
	if (Type == Button)
	{
		return std::make_unique<FButtonLeaf>(StaticCastSharedRef<SButton>(Widget), Parent);
	}
	if (Type == Check)
	{
		return std::make_unique<FCheckLeaf>(StaticCastSharedRef<SCheckBox>(Widget), Parent);
	}
	// A template's type begins with its name.
	if (Widget->GetTypeAsString().StartsWith(TEXT("SComboBox")))
	{
		return std::make_unique<FComboLeaf>(StaticCastSharedRef<SComboButton>(Widget), Parent);
	}
	return nullptr;
}

FLeaf::FLeaf(const TSharedRef<SWidget>& InWidget, QWidget* InQt) : Widget(InWidget), Qt(InQt) {}

FLeaf::~FLeaf()
{
	// Unless its parent took it along. Later, as it may be the one whose event is being handled.
	if (Qt)
	{
		Qt->hide();
		Qt->deleteLater();
	}
}

void FLeaf::Update(const FPlace& Place)
{
	const TSharedPtr<SWidget> Shown = Widget.Pin();
	if (!Shown.IsValid() || !Qt)
	{
		return;
	}
	const QRect Geometry = ToPixels(GetExtent(*Shown, Place));
	if (Geometry != LastGeometry)
	{
		Qt->setGeometry(Geometry);
		LastGeometry = Geometry;
	}
	if (Qt->isEnabled() != Place.bEnabled)
	{
		Qt->setEnabled(Place.bEnabled);
	}
	Show(*Shown, Place);
	if (Qt->isHidden())
	{
		Qt->show();
	}
}

QRectF FLeaf::GetExtent(const SWidget& /*Shown*/, const FPlace& Place) const
{
	return Place.Rect;
}

void FLeaf::Hide()
{
	if (Qt && !Qt->isHidden())
	{
		Qt->hide();
	}
}
