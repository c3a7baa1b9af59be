// Copyright Corvane. MIT License.
#include "Driver/WidgetDescription.h"

#include "StrictJson.h"

#include <initializer_list>

#include "Driver/AnswerText.h"
#include "EngineText.h"
#include "Standalone/TextFormatInspector.h"
#include "Types/SlateStructs.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	/** What the widgets above make of the one that is described. */
	struct FSurroundings
	{
		const FSlotBase* Slot = nullptr;
		bool bShown = true;
		bool bEnabled = true;
	};

	/** The widget as that type, or null if it is another one. */
	template <typename WidgetType>
	const WidgetType* CastTo(const SWidget& Widget, const ANSICHAR* Type)
	{
		return Widget.GetType() == FName(Type) ? static_cast<const WidgetType*>(&Widget) : nullptr;
	}

	const STextBlock* AsTextBlock(const SWidget& Widget)
	{
		return CastTo<STextBlock>(Widget, "STextBlock");
	}

	const SEditableTextBox* AsEditBox(const SWidget& Widget)
	{
		return CastTo<SEditableTextBox>(Widget, "SEditableTextBox");
	}

	FAnswer Numbers(std::initializer_list<float> Values)
	{
		FAnswer Answer = FAnswer::array();
		for (const float Value : Values)
		{
			Answer.push_back(FStrictJson::Number(Value));
		}
		return Answer;
	}

	void AddText(FAnswer& Node, const SWidget& Widget)
	{
		const FText* Text = FWidgetDescription::FindText(Widget);
		if (!Text)
		{
			Node["text"] = nullptr;
			Node["textId"] = nullptr;
			return;
		}
		FAnswerText::Add(Node, "text", *Text);
		if (const FText* Pattern = FTextFormatInspector::GetPattern(*Text))
		{
			FAnswer& Format = Node["format"];
			FAnswerText::Add(Format, "pattern", *Pattern);
			FAnswer& Arguments = Format["arguments"] = FAnswer::array();
			for (const FText& Argument : *FTextFormatInspector::GetArguments(*Text))
			{
				Arguments.push_back(FEngineText::ForDisplay(Argument.ToString()));
			}
		}
	}

	FAnswer DescribeFont(const SWidget& Widget)
	{
		const STextBlock* TextBlock = AsTextBlock(Widget);
		const SEditableTextBox* Box = AsEditBox(Widget);
		if (!TextBlock && !Box)
		{
			return nullptr;
		}
		const FSlateFontInfo& Font = TextBlock ? TextBlock->GetFont() : Box->GetFont();
		return {{"typeface", FEngineText::ForDisplay(Font.TypefaceFontName)}, {"size", Font.Size}};
	}

	/** Null as well where the colour is that of the surroundings. */
	FAnswer DescribeColour(const SWidget& Widget)
	{
		const STextBlock* TextBlock = AsTextBlock(Widget);
		const FSlateColor Colour = TextBlock ? TextBlock->GetColorAndOpacity() : FSlateColor::UseForeground();
		const FLinearColor Value = Colour.GetSpecifiedColor();
		return Colour.IsColorSpecified() ? Numbers({Value.R, Value.G, Value.B, Value.A}) : FAnswer(nullptr);
	}

	FAnswer DescribeImage(const SWidget& Widget)
	{
		const SImage* Image = CastTo<SImage>(Widget, "SImage");
		return Image ? FAnswerText::Icon(Image->GetImage()) : FAnswer(nullptr);
	}

	const char* DescribeVisibility(const SWidget& Widget)
	{
		const EVisibility Visibility = Widget.GetVisibility();
		if (Visibility.IsVisible())
		{
			return "Visible";
		}
		return Visibility == EVisibility::Collapsed ? "Collapsed" : "Hidden";
	}

	const char* DescribeAlignment(EHorizontalAlignment Alignment)
	{
		constexpr const char* Words[] = {"Fill", "Left", "Center", "Right"};
		return Words[Alignment];
	}

	const char* DescribeAlignment(EVerticalAlignment Alignment)
	{
		constexpr const char* Words[] = {"Fill", "Top", "Center", "Bottom"};
		return Words[Alignment];
	}

	FAnswer DescribeSlot(const FSlotBase* Slot)
	{
		const FAlignedSlot* Aligned = Slot ? Slot->AsAligned() : nullptr;
		if (!Aligned)
		{
			return nullptr;
		}
		const FSizeParam* Size = Slot->GetSizeRule();
		const bool bAuto = Size && Size->SizeRule == FSizeParam::SizeRule_Auto;
		const FMargin Padding = Aligned->SlotPadding.Get();
		FAnswer Answer;
		Answer["auto"] = bAuto;
		Answer["fill"] = Size && !bAuto ? FStrictJson::Number(Size->Value.Get()) : FAnswer(nullptr);
		Answer["halign"] = DescribeAlignment(Aligned->HAlignment);
		Answer["valign"] = DescribeAlignment(Aligned->VAlignment);
		Answer["padding"] = Numbers({Padding.Left, Padding.Top, Padding.Right, Padding.Bottom});
		return Answer;
	}

	FAnswer DescribeWithin(const TSharedRef<SWidget>& Widget, FSurroundings Around)
	{
		FAnswer Node;
		Node["type"] = FEngineText::ForDisplay(Widget->GetTypeAsString());
		AddText(Node, *Widget);
		Node["font"] = DescribeFont(*Widget);
		Node["colour"] = DescribeColour(*Widget);
		Node["image"] = DescribeImage(*Widget);
		Node["visibility"] = DescribeVisibility(*Widget);
		Around.bShown = Around.bShown && Widget->GetVisibility().IsVisible();
		Around.bEnabled = Around.bEnabled && Widget->IsEnabled();
		Node["shown"] = Around.bShown;
		Node["enabled"] = Around.bEnabled;
		Node["focused"] = Widget->HasKeyboardFocus();
		Node["slot"] = DescribeSlot(Around.Slot);
		FAnswer& Nodes = Node["children"] = FAnswer::array();
		FChildren& Children = *Widget->GetChildren();
		for (int32 Index = 0; Index < Children.Num(); ++Index)
		{
			Around.Slot = &Children.GetSlotAt(Index);
			Nodes.push_back(DescribeWithin(Children.GetChildAt(Index), Around));
		}
		return Node;
	}
}

FAnswer FWidgetDescription::Describe(const TSharedRef<SWidget>& Root)
{
	return DescribeWithin(Root, FSurroundings());
}

const FText* FWidgetDescription::FindText(const SWidget& Widget)
{
	if (const STextBlock* TextBlock = AsTextBlock(Widget))
	{
		return &TextBlock->GetText();
	}
	const SEditableTextBox* Box = AsEditBox(Widget);
	return Box ? &Box->GetText() : nullptr;
}
