// Copyright Corvane. MIT License.
#include "LevelFile.h"

#include "ErrorText.h"
#include "FileAccess.h"
#include "StrictJson.h"

#include "EditorAssets.h"
#include "LevelBuilder.h"
#include "LevelPlan.h"
#include "LevelWriter.h"

bool FLevelFile::Open(const std::string& Path, std::string& OutError)
{
	std::string Text;
	FLevelPlan Plan;
	std::string Reason;
	if (!FFileAccess::Read(Path, MaxSize, Text, OutError))
	{
		return false;
	}
	if (!FLevelPlan::Make(Text, Plan, Reason))
	{
		OutError = FErrorText::ForFile(Path, Reason);
		return false;
	}
	FLevelBuilder::Replace(Plan);
	return true;
}

bool FLevelFile::Save(const std::string& Path, std::string& OutError, const std::function<bool()>& BeforeRename)
{
	std::string Text;
	std::string Reason;
	if (!ToText(Text, Reason))
	{
		OutError = FErrorText::ForFile(Path, Reason);
		return false;
	}
	if (!FFileAccess::Replace(Path, Text, OutError, BeforeRename))
	{
		return false;
	}
	FEditorAssets::ClearDirtyFlags();
	return true;
}

bool FLevelFile::ToText(std::string& OutText, std::string& OutError)
{
	nlohmann::ordered_json Document;
	if (!FLevelWriter(OutError).WriteLevel(Document))
	{
		return false;
	}
	OutText = FStrictJson::Format(Document);
	if (OutText.size() > MaxSize)
	{
		OutError = "the level is larger than " + std::to_string(MaxSize >> 20U) + " MiB";
		return false;
	}
	// Whatever the level came to hold: a file that could not be opened again is not written.
	FLevelPlan Ignored;
	return FLevelPlan::Make(OutText, Ignored, OutError);
}
