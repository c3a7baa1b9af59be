// Copyright Corvane. MIT License.
#include "Framework/MultiBox/MultiBoxBuilder.h"

FMenuBuilder::FMenuBuilder(const bool bInShouldCloseWindowAfterMenuSelection,
	TSharedPtr<const FUICommandList> InCommandList, TSharedPtr<FExtender> InExtender, const bool bCloseSelfOnly,
	const ISlateStyle* InStyleSet, bool bInSearchable, FName InMenuName)
	: CommandList(InCommandList)
{
	MultiBox.bShouldCloseWindowAfterMenuSelection = bInShouldCloseWindowAfterMenuSelection;
	MultiBox.bIsSearchable = bInSearchable;
	MultiBox.StyleSet = InStyleSet;
	MultiBox.bCloseSelfOnly = bCloseSelfOnly;
	MultiBox.MenuName = InMenuName;
	MultiBox.Extender = InExtender;
}

void FMenuBuilder::BeginSection(FName InExtensionHook, const TAttribute<FText>& InHeadingText)
{
	checkf(!bIsInSection, TEXT("A menu section is still open"));
	NextSection = FMultiBoxSection{InExtensionHook, InHeadingText, {}};
	bStartsNextSection = true;
	bIsInSection = true;
}

void FMenuBuilder::EndSection()
{
	NextSection = FMultiBoxSection();
	bStartsNextSection = true;
	bIsInSection = false;
}

void FMenuBuilder::AddMenuEntry(const TSharedPtr<const FUICommandInfo> InCommand, FName /*InExtensionHook*/,
	const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride,
	const FSlateIcon& InIconOverride, FName /*InTutorialHighlightName*/)
{
	if (bStartsNextSection)
	{
		MultiBox.Sections.Add(NextSection);
		bStartsNextSection = false;
	}
	MultiBox.Sections.Last().Blocks.Add(MakeShared<FMultiBlock>(
		InCommand.ToSharedRef(), CommandList, InLabelOverride, InToolTipOverride, InIconOverride));
}

TSharedRef<SWidget> FMenuBuilder::MakeWidget(
	FMultiBox::FOnMakeMultiBoxBuilderOverride* /*InMakeMultiBoxBuilderOverride*/, uint32 MaxHeight)
{
	MultiBox.MaxHeight = MaxHeight;
	// A copy: what is added to the builder later is not for this widget.
	return SNew(SMultiBoxWidget).MultiBox(MakeShared<FMultiBox>(MultiBox));
}
