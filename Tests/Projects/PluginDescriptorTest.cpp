// Copyright Corvane. MIT License.
#include "TempFolder.h"

#include <gtest/gtest.h>

#include "PluginDescriptor.h"

namespace
{
	/** Loads a descriptor with this content and returns the reason of its refusal without the file's name, or "". */
	std::string ReasonFor(const std::string& Content, FPluginDescriptor& OutDescriptor)
	{
		const FTempFolder Folder;
		const std::string File = Folder.Write("Sample.uplugin", Content);
		FText Reason;
		if (OutDescriptor.Load(File.c_str(), Reason))
		{
			return "";
		}
		const std::string Text = TCHAR_TO_UTF8(*Reason.ToString());
		EXPECT_EQ(Text.rfind(File + ": ", 0), 0u) << Text;
		EXPECT_EQ(Text.find('\n'), std::string::npos) << Text;
		return Text.substr(File.size() + 2);
	}

	std::string ReasonFor(const std::string& Content)
	{
		FPluginDescriptor Descriptor;
		return ReasonFor(Content, Descriptor);
	}
}

TEST(FPluginDescriptor, ReadsTheFieldsOfTheFile)
{
	FPluginDescriptor Descriptor;
	ASSERT_EQ(ReasonFor(R"({"FileVersion": 3, "Version": 7, "VersionName": "1.2", "FriendlyName": "Sämple",
		"Description": "For tests", "EngineVersion": "4.27.0", "CanContainContent": true})",
				  Descriptor),
		"");
	EXPECT_EQ(Descriptor.Version, 7);
	EXPECT_TRUE(Descriptor.VersionName.Equals(TEXT("1.2")));
	EXPECT_TRUE(Descriptor.FriendlyName.Equals(TEXT("Sämple")));
	EXPECT_TRUE(Descriptor.Description.Equals(TEXT("For tests")));
	EXPECT_TRUE(Descriptor.EngineVersion.Equals(TEXT("4.27.0")));
	EXPECT_EQ(Descriptor.Modules.Num(), 0);
}

TEST(FPluginDescriptor, ReadsItsModulesInOrder)
{
	FPluginDescriptor Descriptor;
	ASSERT_EQ(ReasonFor(R"({"Modules": [
		{"Name": "First", "Type": "Runtime", "LoadingPhase": "PreDefault", "WhitelistPlatforms": ["Win64", "Mac"]},
		{"Name": "Second", "Type": "Editor"}]})",
				  Descriptor),
		"");
	ASSERT_EQ(Descriptor.Modules.Num(), 2);
	EXPECT_EQ(Descriptor.Modules[0].Name, FName("First"));
	EXPECT_EQ(Descriptor.Modules[0].Type, EHostType::Runtime);
	EXPECT_EQ(Descriptor.Modules[0].LoadingPhase, ELoadingPhase::PreDefault);
	EXPECT_EQ(Descriptor.Modules[0].WhitelistPlatforms, (TArray<FString>{TEXT("Win64"), TEXT("Mac")}));
	EXPECT_EQ(Descriptor.Modules[1].Name, FName("Second"));
	EXPECT_EQ(Descriptor.Modules[1].Type, EHostType::Editor);
}

TEST(FPluginDescriptor, TakesTheDefaultPhaseWhereNoneIsGiven)
{
	FPluginDescriptor Descriptor;
	ASSERT_EQ(ReasonFor(R"({"Modules": [{"Name": "First", "Type": "Runtime"}]})", Descriptor), "");
	ASSERT_EQ(Descriptor.Modules.Num(), 1);
	EXPECT_EQ(Descriptor.Modules[0].LoadingPhase, ELoadingPhase::Default);
}

TEST(FPluginDescriptor, NamesAMissingFile)
{
	FPluginDescriptor Descriptor;
	FText Reason;
	EXPECT_FALSE(Descriptor.Load(TEXT("/nowhere/Sample.uplugin"), Reason));
	EXPECT_TRUE(Reason.ToString().Equals(TEXT("/nowhere/Sample.uplugin: cannot be read")));
}

TEST(FPluginDescriptor, RefusesAFolder)
{
	const FTempFolder Folder;
	FPluginDescriptor Descriptor;
	FText Reason;
	EXPECT_FALSE(Descriptor.Load(Folder.Path.c_str(), Reason));
	EXPECT_TRUE(Reason.ToString().EndsWith(TEXT(": cannot be read"))) << TCHAR_TO_UTF8(*Reason.ToString());
}

TEST(FPluginDescriptor, RefusesAnEmptyFile)
{
	EXPECT_EQ(ReasonFor(""), "is empty");
}

TEST(FPluginDescriptor, TellsLineAndColumnWhereTheFileIsNoJson)
{
	EXPECT_EQ(ReasonFor("{\n\t\"Version\": ?\n}"), "line 2, column 13: is not JSON");
	EXPECT_EQ(ReasonFor("!"), "line 1, column 1: is not JSON");
}

TEST(FPluginDescriptor, TellsWhereATruncatedFileEnds)
{
	EXPECT_EQ(ReasonFor("{\"Version\": 1"), "line 1, column 14: is not JSON");
}

TEST(FPluginDescriptor, RefusesTextThatIsNotUtf8)
{
	EXPECT_EQ(ReasonFor("{\"VersionName\": \"\xff\"}"), "line 1, column 18: is not JSON");
}

TEST(FPluginDescriptor, TellsThePlaceOfAWrongType)
{
	EXPECT_EQ(ReasonFor("[]"), "/: should be an object");
	EXPECT_EQ(ReasonFor(R"({"Version": "1"})"), "/Version: should be a whole number of 32 bits");
	EXPECT_EQ(ReasonFor(R"({"VersionName": 1.2})"), "/VersionName: should be a text");
	EXPECT_EQ(ReasonFor(R"({"Modules": {}})"), "/Modules: should be a list");
	EXPECT_EQ(ReasonFor(R"({"Modules": [3]})"), "/Modules/0: should be an object");
	EXPECT_EQ(ReasonFor(R"({"Modules": [{"Name": "A"}, {"Name": null}]})"), "/Modules/1/Name: should be a text");
	EXPECT_EQ(ReasonFor(R"({"Modules": [{"Name": "A", "WhitelistPlatforms": "Win64"}]})"),
		"/Modules/0/WhitelistPlatforms: should be a list");
	EXPECT_EQ(ReasonFor(R"({"Modules": [{"Name": "A", "WhitelistPlatforms": [64]}]})"),
		"/Modules/0/WhitelistPlatforms/0: should be a text");
}

TEST(FPluginDescriptor, RefusesVersionsBeyond32Bits)
{
	for (const char* Number : {"2147483648", "-2147483649", "18446744073709551615", "1e3"})
	{
		EXPECT_EQ(
			ReasonFor(std::string("{\"Version\": ") + Number + "}"), "/Version: should be a whole number of 32 bits");
	}
	EXPECT_EQ(ReasonFor(R"({"Version": 2147483647})"), "");
	EXPECT_EQ(ReasonFor(R"({"Version": -2147483648})"), "");
}

TEST(FPluginDescriptor, RefusesAModuleWithoutName)
{
	EXPECT_EQ(ReasonFor(R"({"Modules": [{"Type": "Editor"}]})"), "/Modules/0/Name: should be the module's name");
	EXPECT_EQ(ReasonFor("{\"Modules\": [{\"Name\": \"" + std::string(1024, 'x') + "\"}]}"),
		"/Modules/0/Name: should be the module's name");
}

TEST(FPluginDescriptor, RefusesUnknownTypesAndPhases)
{
	EXPECT_EQ(ReasonFor(R"({"Modules": [{"Name": "A", "Type": "Editors"}]})"), "/Modules/0/Type: is not a known value");
	EXPECT_EQ(ReasonFor(R"({"Modules": [{"Name": "A", "LoadingPhase": ""}]})"),
		"/Modules/0/LoadingPhase: is not a known value");
}

TEST(FPluginDescriptor, StaysAsItWasWhenTheFileIsRefused)
{
	FPluginDescriptor Descriptor;
	Descriptor.VersionName = TEXT("before");
	EXPECT_NE(ReasonFor(R"({"VersionName": "after", "Modules": 1})", Descriptor), "");
	EXPECT_TRUE(Descriptor.VersionName.Equals(TEXT("before")));
}
