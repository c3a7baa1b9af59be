// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

class IDetailLayoutBuilder;

/** Lays out the details of objects of a class. Lives as long as the rows that it made. */
class IDetailCustomization : public TSharedFromThis<IDetailCustomization>
{
public:
	virtual ~IDetailCustomization() = default;

	/** Called whenever the rows are built. */
	virtual void CustomizeDetails(IDetailLayoutBuilder& DetailBuilder) = 0;
};
