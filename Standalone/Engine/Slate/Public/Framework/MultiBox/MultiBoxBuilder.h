// Copyright Corvane. MIT License.
#pragma once

#include "Framework/MultiBox/MultiBox.h"
#include "Styling/CoreStyle.h"

class FExtender;

/** Puts a menu together, entry by entry. */
class SLATE_API FMenuBuilder
{
public:
	/** The list says what the entries' commands do; without one none can be executed. */
	FMenuBuilder(const bool bInShouldCloseWindowAfterMenuSelection, TSharedPtr<const FUICommandList> InCommandList,
		TSharedPtr<FExtender> InExtender = TSharedPtr<FExtender>(), const bool bCloseSelfOnly = false,
		const ISlateStyle* InStyleSet = &FCoreStyle::Get(), bool bInSearchable = true, FName InMenuName = NAME_None);
	virtual ~FMenuBuilder() = default;

	/** Opens a section; fatal while one is open. A section that gets no entry is not shown. */
	void BeginSection(FName InExtensionHook, const TAttribute<FText>& InHeadingText = TAttribute<FText>());
	/** Entries that follow stand outside of all sections. */
	void EndSection();
	/** Appends an entry; fatal for null. Overrides that are not set give way to what the command says. */
	void AddMenuEntry(const TSharedPtr<const FUICommandInfo> InCommand, FName InExtensionHook = NAME_None,
		const TAttribute<FText>& InLabelOverride = TAttribute<FText>(),
		const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(),
		const FSlateIcon& InIconOverride = FSlateIcon(), FName InTutorialHighlightName = NAME_None);
	/** A menu of what was added until now, an SMultiBoxWidget. MaxHeight is in slate units. */
	virtual TSharedRef<SWidget> MakeWidget(
		FMultiBox::FOnMakeMultiBoxBuilderOverride* InMakeMultiBoxBuilderOverride = nullptr, uint32 MaxHeight = 1000);

private:
	TSharedPtr<const FUICommandList> CommandList;
	FMultiBox MultiBox;
	/** The section of the next entry, if that starts one. */
	FMultiBoxSection NextSection;
	bool bStartsNextSection = true;
	/** Between BeginSection and EndSection. */
	bool bIsInSection = false;
};
