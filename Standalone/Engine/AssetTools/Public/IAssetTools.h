// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

class UClass;
class UFactory;
class UObject;

/**
 * Makes assets.
 *
 * A package name is a path like "/Game/Folder/Name"; its last part is the asset's name. In every part blanks, control
 * characters and " ' , \ : * ? < > | . & ! ~ @ # ( ) { } [ ] = ; ^ % $ ` become "_". Names compare without regard to
 * ASCII case.
 */
class IAssetTools
{
public:
	virtual ~IAssetTools() {}

	/**
	 * Finds a name that no asset has: that of base and suffix or, if it is taken, the same with a number: one more than
	 * the number at its end, or 1. A number of more than nine digits is a part of the name.
	 * @param OutPackageName the whole path. A base that is no path of a possible asset comes back as such.
	 * @param OutAssetName its last part.
	 */
	virtual void CreateUniqueAssetName(
		const FString& InBasePackageName, const FString& InSuffix, FString& OutPackageName, FString& OutAssetName) = 0;

	/**
	 * Makes an asset in a package of its own below PackagePath, flags the package as changed and tells the asset
	 * registry.
	 * @param Factory there are none here: always null, and the class itself is instantiated.
	 * @return null for no or an abstract class; where the path does not begin with "/", has an empty part or more than
	 * 1,023 units; and where there is an asset already.
	 */
	virtual UObject* CreateAsset(const FString& AssetName, const FString& PackagePath, UClass* AssetClass,
		UFactory* Factory, FName CallingContext = FName()) = 0;
};
