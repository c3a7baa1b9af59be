// Copyright Corvane. MIT License.
#pragma once

#include "Delegates/Delegate.h"
#include "Input/Reply.h"
#include "Internationalization/Text.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateEnums.h"

class SWidget;

/** @file The delegates that widgets share. */

// The formatter takes lines without semicolon for one.
// clang-format off
DECLARE_DELEGATE_RetVal(FReply, FOnClicked)
DECLARE_DELEGATE_RetVal(TSharedRef<SWidget>, FOnGetContent)
DECLARE_DELEGATE_OneParam(FOnTextChanged, const FText&)
DECLARE_DELEGATE_TwoParams(FOnTextCommitted, const FText&, ETextCommit::Type)
DECLARE_DELEGATE_OneParam(FOnCheckStateChanged, ECheckBoxState)

/** Those of widgets that offer items of any type. */
template <typename ItemType>
class TSlateDelegates
{
public:
	/** Makes what shows an item. */
	DECLARE_DELEGATE_RetVal_OneParam(TSharedRef<SWidget>, FOnGenerateWidget, ItemType)
	/** Is told the item that is selected now, or the empty one. */
	DECLARE_DELEGATE_TwoParams(FOnSelectionChanged, ItemType, ESelectInfo::Type)
};
// clang-format on
