// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

/** Paths of assets as level files and reports write them: the package's name, as an asset is the one object of its
 * package. */
class FAssetPaths
{
public:
	/** @return whether an asset can have this path: below /Game/, no empty part, no character that asset names forbid.
	 */
	static bool IsValid(FName Path);

	/** @return the last part, which is the asset's own name. */
	static FName GetAssetName(FName Path);
};
