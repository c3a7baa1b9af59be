// Copyright Corvane. MIT License.
#pragma once

#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

/** A window: the root of the widgets in it. Only what holds notifications is one here; tabs and menus have none. */
class SLATECORE_API SWindow : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SWindow) {}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs) { ChildSlot[InArgs._Content.Widget]; }
};
