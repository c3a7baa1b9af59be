// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Internationalization/Text.h"

/** What all copies of a text share: what it is made of and, for as long as the table stays, what it displays. */
class FTextData
{
public:
	/** Without identity, always as it is. */
	explicit FTextData(const FString& InSource);

	/** With identity. */
	FTextData(const FString& InNamespace, const FString& InKey, const FString& InSource);

	/** Formatted. */
	FTextData(const FText& InPattern, const TArray<FText>& InArguments);

	bool HasIdentity() const { return Kind == EKind::Localised; }
	bool IsFormatted() const { return Kind == EKind::Formatted; }
	const FString& GetNamespace() const { return Namespace; }
	const FString& GetKey() const { return Key; }
	/** Only for texts that are not formatted. */
	const FString& GetSource() const { return Source; }
	const FText& GetPattern() const { return Pattern; }
	const TArray<FText>& GetArguments() const { return Arguments; }

	/** Asks the table, or formats, only when the table has changed since the last call. */
	const FString& GetDisplay();

private:
	enum class EKind
	{
		Plain,
		Localised,
		Formatted
	};

	EKind Kind;
	FString Namespace;
	FString Key;
	FString Source;
	FText Pattern;
	TArray<FText> Arguments;
	FString Display;
	/** The table's revision that Display was made for; no table has revision 0. */
	uint16 Revision = 0;
};
