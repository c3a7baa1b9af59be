// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Styling/ISlateStyle.h"
#include "Templates/UniquePtr.h"

/**
 * A style set that is filled at run time. Its brushes live as long as the set itself, also one that was replaced under
 * its key, since widgets hold plain pointers to them.
 */
class SLATECORE_API FSlateStyleSet : public ISlateStyle
{
public:
	explicit FSlateStyleSet(const FName& InStyleSetName) : StyleSetName(InStyleSetName) {}

	virtual const FName& GetStyleSetName() const override { return StyleSetName; }
	virtual const FSlateBrush* GetBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const override;
	virtual const FSlateBrush* GetOptionalBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr,
		const FSlateBrush* const DefaultBrush = FStyleDefaults::GetNoBrush()) const override;
	virtual FSlateFontInfo GetFontStyle(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const override;

	/** The folder that RootToContentDir starts from. */
	virtual void SetContentRoot(const FString& InContentRootDir);
	/** The path of a file below the content root, extension appended. */
	virtual FString RootToContentDir(const ANSICHAR* RelativePath, const TCHAR* Extension);
	virtual FString RootToContentDir(const WIDECHAR* RelativePath, const TCHAR* Extension);
	virtual FString RootToContentDir(const FString& RelativePath, const TCHAR* Extension);

	/** Puts a brush under a key and owns it from now on. */
	void Set(const FName PropertyName, FSlateBrush* InBrush);
	void Set(const FName PropertyName, const FSlateFontInfo& InFontInfo);

private:
	virtual const FName* FindKey(const FSlateBrush* Brush) const override;

	FName StyleSetName;
	FString ContentRootDir;
	TArray<TUniquePtr<FSlateBrush>> Brushes;
	TMap<FName, const FSlateBrush*> BrushesByKey;
	TMap<FName, FSlateFontInfo> FontsByKey;
};
