// Copyright Corvane. MIT License.
#pragma once

#include "Framework/SlateDelegates.h"
#include "Standalone/SPressable.h"
#include "Widgets/DeclarativeSyntaxSupport.h"

/** A button around any content. Pressing it is a click. */
class SLATE_API SButton : public SPressable
{
public:
	SLATE_BEGIN_ARGS(SButton) {}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_EVENT(FOnClicked, OnClicked)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

protected:
	virtual FReply Press() override;

private:
	FOnClicked OnClicked;
};
