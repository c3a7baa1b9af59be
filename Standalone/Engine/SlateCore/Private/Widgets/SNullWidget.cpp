// Copyright Corvane. MIT License.
#include "Widgets/SNullWidget.h"

#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SLeafWidget.h"

namespace
{
	class SNullWidgetContent : public SLeafWidget
	{
	public:
		SLATE_BEGIN_ARGS(SNullWidgetContent) {}
		SLATE_END_ARGS()

		void Construct(const FArguments& /*InArgs*/) {}

	protected:
		virtual FVector2D ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const override { return FVector2D(); }
	};
}

TSharedRef<SWidget> SNullWidget::NullWidget = SNew(SNullWidgetContent);
