// Copyright Corvane. MIT License.
#pragma once

/**
 * Makes the creation of assets go wrong while it lives, by putting another module in the place of "AssetTools". Names
 * are still made by the real tools. Start it while an editor runs, and end it before that editor does.
 */
class FAssetToolsFault
{
public:
	enum class EKind
	{
		/** No asset is made. */
		ReturnNull,
		/** An asset of the class UOtherAsset is made. */
		ReturnOtherClass,
		/** The module makes no asset and no names, as there is no such module: loading it fails. */
		MissingModule
	};

	explicit FAssetToolsFault(EKind Kind);
	FAssetToolsFault(const FAssetToolsFault&) = delete;
	FAssetToolsFault& operator=(const FAssetToolsFault&) = delete;
	~FAssetToolsFault();
};
