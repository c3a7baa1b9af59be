// Copyright Corvane. MIT License.
#pragma once

struct FSlateBrush;

/** Styles for where nothing better is known. */
class SLATECORE_API FStyleDefaults
{
public:
	/** The brush that draws nothing. */
	static const FSlateBrush* GetNoBrush();
};
