// Copyright Corvane. MIT License.
#include "Widgets/SLeafWidget.h"

FChildren* SLeafWidget::GetChildren()
{
	return &FNoChildren::NoChildrenInstance;
}

void SLeafWidget::OnArrangeChildren(
	const FGeometry& /*AllottedGeometry*/, FArrangedChildren& /*ArrangedChildren*/) const
{}
