// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "SlotBase.h"

class FDetailWidgetRow;

/** One of a row's contents: a widget, its alignment and how wide it may be, in slate units. */
class FDetailWidgetDecl : public TAlignedSlot<FDetailWidgetDecl>
{
public:
	explicit FDetailWidgetDecl(FDetailWidgetRow& InParentDecl) : ParentDecl(InParentDecl)
	{
		VAlignment = VAlign_Center;
	}

	FDetailWidgetDecl& MinDesiredWidth(TOptional<float> InMinWidth)
	{
		MinWidth = InMinWidth;
		return *this;
	}
	FDetailWidgetDecl& MaxDesiredWidth(TOptional<float> InMaxWidth)
	{
		MaxWidth = InMaxWidth;
		return *this;
	}
	/** Sets the widget. @return the row, whose next content may follow. */
	FDetailWidgetRow& operator[](const TSharedRef<SWidget>& InWidget)
	{
		AttachWidget(InWidget);
		return ParentDecl;
	}

	TOptional<float> MinWidth;
	TOptional<float> MaxWidth;

private:
	FDetailWidgetRow& ParentDecl;
};

/** A row of a details panel: a name and a value. */
class FDetailWidgetRow
{
public:
	FDetailWidgetRow() : NameWidget(*this), ValueWidget(*this) {}
	FDetailWidgetRow(const FDetailWidgetRow&) = delete;
	FDetailWidgetRow& operator=(const FDetailWidgetRow&) = delete;

	FDetailWidgetDecl& NameContent() { return NameWidget; }
	FDetailWidgetDecl& ValueContent() { return ValueWidget; }
	/** What a search finds the row by. */
	FDetailWidgetRow& FilterString(const FText& InFilterString)
	{
		FilterTextString = InFilterString;
		return *this;
	}

	FText FilterTextString;
	FDetailWidgetDecl NameWidget;
	FDetailWidgetDecl ValueWidget;
};
