// Copyright Corvane. MIT License.
#include "Styling/SlateStyle.h"

namespace
{
	/** Shown in place of a brush that a set lacks: a plain white square, so that the gap is seen. */
	const FSlateBrush& GetDefaultBrush()
	{
		static const FSlateBrush DefaultBrush;
		return DefaultBrush;
	}
}

const FSlateBrush* FSlateStyleSet::GetBrush(const FName PropertyName, const ANSICHAR* Specifier) const
{
	return GetOptionalBrush(PropertyName, Specifier, &GetDefaultBrush());
}

const FSlateBrush* FSlateStyleSet::GetOptionalBrush(
	const FName PropertyName, const ANSICHAR* Specifier, const FSlateBrush* const DefaultBrush) const
{
	const FName Key = Specifier ? FName(*(PropertyName.ToString() + Specifier)) : PropertyName;
	const FSlateBrush* const* Found = BrushesByKey.Find(Key);
	return Found ? *Found : DefaultBrush;
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
