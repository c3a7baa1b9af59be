// Copyright Corvane. MIT License.
#include "SlotFile.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace
{
	constexpr std::string_view Mark = "QuillonSaveGame\n";
	constexpr uint32_t Version = 1;
	/** The mark and three numbers. */
	constexpr size_t HeaderSize = Mark.size() + size_t(3) * 4;

	using FChecksumTables = std::array<std::array<uint32_t, 256>, 8>;

	/** What each byte adds to the checksum, at the end of eight bytes and up to seven before it. */
	constexpr FChecksumTables MakeChecksumTables()
	{
		FChecksumTables Tables{};
		for (uint32_t Byte = 0; Byte < 256; ++Byte)
		{
			uint32_t Remainder = Byte;
			for (int Bit = 0; Bit < 8; ++Bit)
			{
				Remainder = (Remainder >> 1U) ^ ((Remainder & 1U) != 0 ? 0xEDB88320U : 0U);
			}
			Tables[0][Byte] = Remainder;
		}
		for (size_t Table = 1; Table < Tables.size(); ++Table)
		{
			for (size_t Byte = 0; Byte < 256; ++Byte)
			{
				const uint32_t Before = Tables[Table - 1][Byte];
				Tables[Table][Byte] = (Before >> 8U) ^ Tables[0][Before & 0xFFU];
			}
		}
		return Tables;
	}

	/** Little-endian. */
	uint32_t LoadFour(const uint8* Bytes)
	{
		return Bytes[0] | uint32_t(Bytes[1]) << 8U | uint32_t(Bytes[2]) << 16U | uint32_t(Bytes[3]) << 24U;
	}

	/** CRC-32 as in PNG and gzip: finds each single flipped bit, and each run of up to 32. */
	uint32_t GetChecksum(const uint8* Bytes, size_t Count)
	{
		static constexpr FChecksumTables Tables = MakeChecksumTables();
		uint32_t Remainder = 0xFFFFFFFFU;
		size_t Index = 0;
		// Eight at a time, as each step waits for the one before.
		for (; Index + 8 <= Count; Index += 8)
		{
			Remainder ^= LoadFour(Bytes + Index);
			const uint32_t Next = LoadFour(Bytes + Index + 4);
			Remainder = Tables[7][Remainder & 0xFFU] ^ Tables[6][(Remainder >> 8U) & 0xFFU] ^
				Tables[5][(Remainder >> 16U) & 0xFFU] ^ Tables[4][Remainder >> 24U] ^ Tables[3][Next & 0xFFU] ^
				Tables[2][(Next >> 8U) & 0xFFU] ^ Tables[1][(Next >> 16U) & 0xFFU] ^ Tables[0][Next >> 24U];
		}
		for (; Index < Count; ++Index)
		{
			Remainder = (Remainder >> 8U) ^ Tables[0][(Remainder ^ Bytes[Index]) & 0xFFU];
		}
		return ~Remainder;
	}

	void AppendNumber(std::string& File, uint32_t Number)
	{
		for (unsigned Shift = 0; Shift < 32; Shift += 8)
		{
			File += static_cast<char>((Number >> Shift) & 0xFFU);
		}
	}

	/** The number behind the mark. */
	uint32_t ReadNumber(const std::string& File, size_t Index)
	{
		uint32_t Number = 0;
		for (size_t Byte = 4; Byte-- > 0;)
		{
			Number = (Number << 8U) | static_cast<unsigned char>(File[Mark.size() + Index * 4 + Byte]);
		}
		return Number;
	}
}

std::string FSlotFile::Pack(const TArray<uint8>& Payload)
{
	const auto Count = static_cast<size_t>(Payload.Num());
	std::string File;
	File.reserve(HeaderSize + Count);
	File.append(Mark);
	AppendNumber(File, Version);
	AppendNumber(File, static_cast<uint32_t>(Count));
	AppendNumber(File, GetChecksum(Payload.GetData(), Count));
	File.append(reinterpret_cast<const char*>(Payload.GetData()), Count);
	return File;
}

bool FSlotFile::Unpack(const std::string& File, TArray<uint8>& OutPayload, std::string& OutReason)
{
	if (File.compare(0, Mark.size(), Mark) != 0)
	{
		OutReason = "not a save game";
		return false;
	}
	const bool bWhole = File.size() >= HeaderSize;
	if (bWhole && ReadNumber(File, 0) > Version)
	{
		OutReason = "a save game of a newer version of this program";
		return false;
	}
	const size_t Count = bWhole ? File.size() - HeaderSize : 0;
	const auto* const Payload = reinterpret_cast<const uint8*>(File.data()) + (bWhole ? HeaderSize : 0);
	if (!bWhole || ReadNumber(File, 0) != Version || ReadNumber(File, 1) != Count ||
		ReadNumber(File, 2) != GetChecksum(Payload, Count))
	{
		OutReason = "a damaged save game";
		return false;
	}
	OutPayload = TArray<uint8>(Payload, static_cast<int32>(Count));
	return true;
}
