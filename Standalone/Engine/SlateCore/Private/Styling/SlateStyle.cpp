// Copyright Corvane. MIT License.
#include "Styling/SlateStyle.h"

#include "Styling/CoreStyle.h"

namespace
{
	/** Shown in place of a brush that a set lacks: a plain white square, so that the gap is seen. */
	const FSlateBrush& GetDefaultBrush()
	{
		static const FSlateBrush DefaultBrush;
		return DefaultBrush;
	}

	FName MakeKey(const FName PropertyName, const ANSICHAR* Specifier)
	{
		return Specifier ? FName(*(PropertyName.ToString() + Specifier)) : PropertyName;
	}
}

const FSlateBrush* FSlateStyleSet::GetBrush(const FName PropertyName, const ANSICHAR* Specifier) const
{
	return GetOptionalBrush(PropertyName, Specifier, &GetDefaultBrush());
}

const FSlateBrush* FSlateStyleSet::GetOptionalBrush(
	const FName PropertyName, const ANSICHAR* Specifier, const FSlateBrush* const DefaultBrush) const
{
	const FSlateBrush* const* Found = BrushesByKey.Find(MakeKey(PropertyName, Specifier));
	return Found ? *Found : DefaultBrush;
}

FSlateFontInfo FSlateStyleSet::GetFontStyle(const FName PropertyName, const ANSICHAR* Specifier) const
{
	const FSlateFontInfo* Found = FontsByKey.Find(MakeKey(PropertyName, Specifier));
	return Found ? *Found : FCoreStyle::GetDefaultFontStyle("Regular", FCoreStyle::RegularTextSize);
}

void FSlateStyleSet::SetContentRoot(const FString& InContentRootDir)
{
	ContentRootDir = InContentRootDir;
}

FString FSlateStyleSet::RootToContentDir(const ANSICHAR* RelativePath, const TCHAR* Extension)
{
	return RootToContentDir(FString(RelativePath), Extension);
}

FString FSlateStyleSet::RootToContentDir(const WIDECHAR* RelativePath, const TCHAR* Extension)
{
	return RootToContentDir(FString(RelativePath), Extension);
}

FString FSlateStyleSet::RootToContentDir(const FString& RelativePath, const TCHAR* Extension)
{
	return ContentRootDir / RelativePath + Extension;
}

void FSlateStyleSet::Set(const FName PropertyName, FSlateBrush* InBrush)
{
	Brushes.Add(TUniquePtr<FSlateBrush>(InBrush));
	// Removed first: the map would keep an earlier spelling of the key.
	BrushesByKey.Remove(PropertyName);
	BrushesByKey.Add(PropertyName, InBrush);
}

void FSlateStyleSet::Set(const FName PropertyName, const FSlateFontInfo& InFontInfo)
{
	FontsByKey.Add(PropertyName, InFontInfo);
}

const FName* FSlateStyleSet::FindKey(const FSlateBrush* Brush) const
{
	for (const TPair<FName, const FSlateBrush*>& Entry : BrushesByKey)
	{
		if (Entry.Value == Brush)
		{
			return &Entry.Key;
		}
	}
	return nullptr;
}
