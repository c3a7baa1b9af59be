// Copyright Corvane. MIT License.
#include "Framework/MultiBox/MultiBox.h"

#include "Math/UnrealMathUtility.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	// The widgets hold their entry: they may be kept longer than the menu that they were in.

	void AppendIcon(SHorizontalBox::FArguments& Row, const TSharedRef<const FMultiBlock>& Block)
	{
		if (Block->GetIcon().IsSet())
		{
			// clang-format off
			Row + SHorizontalBox::Slot().AutoWidth().VAlign(VAlign_Center).Padding(0.0f, 0.0f, 4.0f, 0.0f)
			[
				SNew(SImage).Image_Lambda([Block]() { return Block->GetIcon().GetIcon(); })
			];
			// clang-format on
		}
	}

	void AppendCheckBox(SHorizontalBox::FArguments& Row, const TSharedRef<const FMultiBlock>& Block)
	{
		if (Block->IsCheckable())
		{
			// clang-format off
			Row + SHorizontalBox::Slot().AutoWidth().VAlign(VAlign_Center).Padding(0.0f, 0.0f, 4.0f, 0.0f)
			[
				SNew(SCheckBox)
				.IsChecked_Lambda([Block]() { return Block->GetCheckState(); })
				// A press on the box does not reach the button around it.
				.OnCheckStateChanged_Lambda([Block](ECheckBoxState) { Block->Execute(); })
			];
			// clang-format on
		}
	}

	TSharedRef<SWidget> MakeEntry(const TSharedRef<const FMultiBlock>& Block)
	{
		SHorizontalBox::FArguments Row;
		AppendIcon(Row, Block);
		AppendCheckBox(Row, Block);
		// clang-format off
		Row + SHorizontalBox::Slot().FillWidth(1.0f).VAlign(VAlign_Center)
		[
			SNew(STextBlock).Text_Lambda([Block]() { return Block->GetLabel(); })
		];
		return SNew(SButton)
			.IsEnabled_Lambda([Block]() { return Block->CanExecute(); })
			.OnClicked_Lambda([Block]() { Block->Execute(); return FReply::Handled(); })
			[
				MakeTDecl<SHorizontalBox>("SHorizontalBox") <<= Row
			];
		// clang-format on
	}
}

FMultiBlock::FMultiBlock(const TSharedRef<const FUICommandInfo>& InCommand,
	const TSharedPtr<const FUICommandList>& InActionList, const TAttribute<FText>& LabelOverride,
	const TAttribute<FText>& ToolTipOverride, const FSlateIcon& IconOverride)
	: Command(InCommand),
	  ActionList(InActionList),
	  Label(LabelOverride.IsSet() ? LabelOverride : TAttribute<FText>(Command->GetLabel())),
	  ToolTip(ToolTipOverride.IsSet() ? ToolTipOverride : TAttribute<FText>(Command->GetDescription())),
	  Icon(IconOverride.IsSet() ? IconOverride : Command->GetIcon())
{}

bool FMultiBlock::IsCheckable() const
{
	const EUserInterfaceActionType Type = Command->GetUserInterfaceType();
	return Type == EUserInterfaceActionType::ToggleButton || Type == EUserInterfaceActionType::RadioButton ||
		Type == EUserInterfaceActionType::Check;
}

bool FMultiBlock::CanExecute() const
{
	return ActionList.IsValid() && ActionList->CanExecuteAction(Command);
}

ECheckBoxState FMultiBlock::GetCheckState() const
{
	return ActionList.IsValid() ? ActionList->GetCheckState(Command) : ECheckBoxState::Unchecked;
}

bool FMultiBlock::Execute() const
{
	return ActionList.IsValid() && ActionList->ExecuteAction(Command);
}

void SMultiBoxWidget::Construct(const FArguments& InArgs)
{
	check(InArgs._MultiBox.IsValid());
	MultiBox = InArgs._MultiBox;
	SScrollBox::FArguments Column;
	for (const FMultiBoxSection& Section : MultiBox->Sections)
	{
		if (!Section.Heading.Get().IsEmpty())
		{
			Column + SScrollBox::Slot().Padding(4.0f, 2.0f)[SNew(STextBlock).Text(Section.Heading)];
		}
		for (const TSharedRef<const FMultiBlock>& Block : Section.Blocks)
		{
			Column + SScrollBox::Slot()[MakeEntry(Block)];
		}
	}
	ChildSlot[MakeTDecl<SScrollBox>("SScrollBox") <<= Column];
}

FVector2D SMultiBoxWidget::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	FVector2D Result = SCompoundWidget::ComputeDesiredSize(LayoutScaleMultiplier);
	Result.Y = FMath::Min(Result.Y, static_cast<float>(MultiBox->MaxHeight));
	return Result;
}
