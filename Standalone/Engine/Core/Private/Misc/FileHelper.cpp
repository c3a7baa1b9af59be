// Copyright Corvane. MIT License.
#include <cstdio>
#include <memory>
#include <string>

#include "Misc/FileHelper.h"

bool FFileHelper::LoadFileToString(FString& Result, const TCHAR* Filename)
{
	const std::unique_ptr<std::FILE, int (*)(std::FILE*)> File(std::fopen(TCHAR_TO_UTF8(Filename), "rb"), &std::fclose);
	if (!File)
	{
		return false;
	}
	std::string Bytes;
	char Buffer[65536];
	std::size_t Count;
	while ((Count = std::fread(Buffer, 1, sizeof(Buffer), File.get())) > 0)
	{
		Bytes.append(Buffer, Count);
	}
	// A folder can be opened too, but not read.
	if (std::ferror(File.get()) != 0)
	{
		return false;
	}
	const std::size_t Start = Bytes.compare(0, 3, "\xEF\xBB\xBF") == 0 ? 3 : 0;
	const FUTF8ToTCHAR Converted(Bytes.data() + Start, static_cast<int32>(Bytes.size() - Start));
	Result = FString(Converted.Length(), Converted.Get());
	return true;
}
