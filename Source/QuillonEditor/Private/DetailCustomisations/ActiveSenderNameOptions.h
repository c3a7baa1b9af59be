// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

/**
 * What the drop-downs of sender names offer: one list for all of them, which they show themselves rather than copies.
 * It survives the panels; game thread only, but for the making of the one object.
 *
 * Names are compared exactly everywhere: Spout tells Cam from cam.
 */
class FActiveSenderNameOptions
{
public:
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnLostStateChanged, bool);

	/** The one object, made at the first call and kept until the process ends. */
	static FActiveSenderNameOptions& Get();

	/**
	 * Brings the list up to date: adds the senders that have become active at the end, drops those that are not active
	 * any more, and keeps CurrentName in it whether it is active or not. What stays keeps its place and its string.
	 * Tells every subscriber whether CurrentName is lost, before anything is dropped.
	 * @param bUseFirstAvailable no name is looked for, so none is lost.
	 * @return a copy of the list, with the same strings.
	 */
	TArray<TSharedPtr<FString>> RefreshOptions(FString CurrentName, bool bUseFirstAvailable);

	/** The first option with the name that the last refresh was asked for, or null; good until the list changes. */
	const TSharedPtr<FString>* GetCurrentOption() const;

	/** The text as it stands, not localised. Asked for the same one again it makes no new text. */
	const FText& GetLabel(const FString& Text);

	/** Broadcast with each refresh; true: the name that was asked for is lost. */
	FOnLostStateChanged OnLostStateChanged;

	/** Once refreshed, the entry for the first available sender, then names. */
	TArray<TSharedPtr<FString>> Options;

	/** The first entry's text. */
	const FString FirstAvailableOption = TEXT("Use first available sender");

private:
	/** Appends the names that are not listed yet. @return whether CurrentName is among the names. */
	bool AddActiveNames(const TArray<FString>& Names, const FString& CurrentName);

	/** Drops what is neither among the names nor CurrentName. @return whether CurrentName is listed. */
	bool DropInactiveOptions(const TArray<FString>& Names, const FString& CurrentName);

	/**
	 * Whether a refresh would leave the list as it is. True only if the senders are those of the last refresh, in the
	 * same order or the reverse of it: a false answer may be wrong, and costs a refresh in full.
	 * @param OutCurrentIsActive only set with true.
	 */
	bool IsUpToDate(const TArray<FString>& Names, const FString& CurrentName, bool& OutCurrentIsActive);

	void FindCurrentOption(const FString& CurrentName);

	/**
	 * From the last refresh in full: which of the names that Spout reported each option after the first one was;
	 * INDEX_NONE: none, it was the current name. Options is open to everyone, so IsUpToDate believes nothing of this
	 * that it can't see there.
	 */
	TArray<int32> NameOfOption;

	/** How many names these were; INDEX_NONE if two were alike. */
	int32 NumNames = INDEX_NONE;

	/** Where the first option with the current name stands, or INDEX_NONE. */
	int32 CurrentOption = INDEX_NONE;

	FText LastLabel;
};
