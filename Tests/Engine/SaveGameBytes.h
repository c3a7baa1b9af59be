// Copyright Corvane. MIT License.
#pragma once

#include <cstring>
#include <string>

#include "CoreMinimal.h"

/** The bytes of a saved object, put together by hand. */
class FSaveGameBytes
{
public:
	FSaveGameBytes() = default;
	explicit FSaveGameBytes(const TArray<uint8>& InBytes) : Bytes(InBytes) {}

	FSaveGameBytes& Byte(uint8 Value)
	{
		Bytes.Add(Value);
		return *this;
	}
	FSaveGameBytes& Number(int32 Value) { return Raw(&Value, sizeof(Value)); }
	FSaveGameBytes& Text(const FString& Value)
	{
		Number(Value.Len());
		return Raw(*Value, static_cast<size_t>(Value.Len()) * sizeof(TCHAR));
	}
	FSaveGameBytes& Append(const FSaveGameBytes& Value)
	{
		Bytes.Append(Value.Bytes);
		return *this;
	}
	FSaveGameBytes& Member(const FString& Name, const FString& Type, const FSaveGameBytes& Value)
	{
		return Text(Name).Text(Type).Number(Value.Bytes.Num()).Append(Value);
	}
	/** What ends the members of a structure. */
	FSaveGameBytes& End() { return Text(FString()); }

	/** Puts one text over another one of the same length, at its first place. */
	void ReplaceText(const FString& From, const FString& To)
	{
		std::string All(reinterpret_cast<const char*>(Bytes.GetData()), static_cast<size_t>(Bytes.Num()));
		const size_t Length = static_cast<size_t>(From.Len()) * sizeof(TCHAR);
		const size_t Found = All.find(std::string(reinterpret_cast<const char*>(*From), Length));
		check(From.Len() == To.Len() && Found != std::string::npos);
		std::memcpy(&Bytes[static_cast<int32>(Found)], *To, Length);
	}

	const TArray<uint8>& Get() const { return Bytes; }

private:
	FSaveGameBytes& Raw(const void* Data, size_t Count)
	{
		Bytes.Append(TArray<uint8>(static_cast<const uint8*>(Data), static_cast<int32>(Count)));
		return *this;
	}

	TArray<uint8> Bytes;
};
