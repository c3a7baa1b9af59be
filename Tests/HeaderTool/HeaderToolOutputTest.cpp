// Copyright Corvane. MIT License.
#include "ToolRun.h"

#include <gtest/gtest.h>

namespace
{
	const char* const Good =
		"#include \"Thing.generated.h\"\n\nUCLASS()\nclass PROBE_API UThing : public UObject\n{\n\tGENERATED_BODY()\n};\n";

	bool Contains(const std::string& Text, const std::string& Part)
	{
		return Text.find(Part) != std::string::npos;
	}
}

TEST(HeaderTool, DefinesTheBodyForTheFileAndLine)
{
	FToolRun Tool;
	Tool.Write("Thing.h", Good);
	ASSERT_TRUE(Tool.Run({"Thing.h"})) << Tool.GetMessages();
	const std::string Header = Tool.ReadOutput("Thing.generated.h");
	EXPECT_TRUE(Contains(Header, "#define CURRENT_FILE_ID Module_Public_Thing_h\n")) << Header;
	EXPECT_TRUE(Contains(Header, "#define Module_Public_Thing_h_6_GENERATED_BODY ")) << Header;
	EXPECT_TRUE(Contains(Header, "TEXT(\"/Script/Probe\"), PROBE_API)")) << Header;
}

TEST(HeaderTool, IncludesTheHeaderAsModulesDo)
{
	FToolRun Tool;
	std::filesystem::create_directories(Tool.GetFolder() / "Module/Public/Sub");
	Tool.Write("Sub/Thing.h", Good);
	ASSERT_TRUE(Tool.Run({"Sub/Thing.h"})) << Tool.GetMessages();
	EXPECT_TRUE(Contains(Tool.ReadOutput("Thing.gen.cpp"), "#include \"Sub/Thing.h\"\n"));
}

TEST(HeaderTool, RegistersAllTypesOfTheModuleInOneFunction)
{
	FToolRun Tool;
	Tool.Write("Thing.h", Good);
	Tool.Write("Other.h", "#include \"Other.generated.h\"\nUSTRUCT()\nstruct FOther\n{\n\tGENERATED_BODY()\n};\n");
	ASSERT_TRUE(Tool.Run({"Thing.h", "Other.h"})) << Tool.GetMessages();
	const std::string Init = Tool.ReadOutput("Probe.init.gen.cpp");
	EXPECT_TRUE(
		Contains(Init, "extern \"C\" __attribute__((visibility(\"default\"))) void RegisterReflection_Probe()\n"))
		<< Init;
	EXPECT_TRUE(
		Contains(Init, "RegisterModule({&Z_Construct_UClass_UThing_NoRegister}, {&Z_Construct_UScriptStruct_FOther})"))
		<< Init;
}

TEST(HeaderTool, WritesFilesForAHeaderWithoutTypes)
{
	FToolRun Tool;
	Tool.Write("Thing.h", "#include \"Thing.generated.h\"\n");
	ASSERT_TRUE(Tool.Run({"Thing.h"})) << Tool.GetMessages();
	EXPECT_TRUE(std::filesystem::exists(Tool.GetOutput("Thing.generated.h")));
	EXPECT_TRUE(std::filesystem::exists(Tool.GetOutput("Thing.gen.cpp")));
}

TEST(HeaderTool, RewritesOnlyWhatChanged)
{
	FToolRun Tool;
	Tool.Write("Thing.h", Good);
	ASSERT_TRUE(Tool.Run({"Thing.h"})) << Tool.GetMessages();
	const auto Old = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
	for (const char* Name : {"Thing.generated.h", "Thing.gen.cpp", "Probe.init.gen.cpp"})
	{
		std::filesystem::last_write_time(Tool.GetOutput(Name), Old);
	}
	// The body moves down a line: the header changes, the sources do not.
	Tool.Write("Thing.h", std::string("\n") + Good);
	ASSERT_TRUE(Tool.Run({"Thing.h"})) << Tool.GetMessages();
	EXPECT_GT(std::filesystem::last_write_time(Tool.GetOutput("Thing.generated.h")), Old);
	EXPECT_EQ(std::filesystem::last_write_time(Tool.GetOutput("Thing.gen.cpp")), Old);
	EXPECT_EQ(std::filesystem::last_write_time(Tool.GetOutput("Probe.init.gen.cpp")), Old);
}
