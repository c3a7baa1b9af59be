// Copyright Corvane. MIT License.
// The one place that includes CLI11, which the engine's macros would break.
#include "CommandLine.h"

#include "ErrorText.h"
#include "Unicode.h"

#include <CLI/CLI.hpp>

namespace
{
	constexpr const char* NoSavedDir = "--saved needs the name of a folder";
	constexpr const char* NoScreenshot = "--screenshot needs the name of a file";

	FCommandLine Refuse(const std::string& Reason)
	{
		FCommandLine Result;
		Result.Status = EExitStatus::BadInput;
		Result.ErrorLine = "quillon-editor: " + FErrorText::OneLine(Reason);
		return Result;
	}

	FCommandLine Print(std::string Text)
	{
		FCommandLine Result;
		Result.Output = std::move(Text);
		if (Result.Output.empty() || Result.Output.back() != '\n')
		{
			Result.Output += '\n';
		}
		return Result;
	}

	/** The arguments as CLI11 fills them in. */
	struct FArguments
	{
		FCreateOptions Create;
		FDriveOptions Drive;
		FWindowOptions Window;
		std::string View = "null";
		CLI::App App{"The editor of the plugin, on its own stand-alone engine.", "quillon-editor"};
		CLI::App* CreateCommand = nullptr;
		CLI::App* DriveCommand = nullptr;
		CLI::App* WorkerCommand = nullptr;

		FArguments();

	private:
		void AddCreate();
		void AddDrive();
	};

	FArguments::FArguments()
	{
		App.set_version_flag("--version", "quillon-editor " QUILLON_VERSION);
		App.footer("Without a command the editor's window opens.");
		App.add_option("--level", Window.LevelFile, "level to open in the window (default: an empty one)")
			->type_name("FILE");
		App.add_option("--saved", Window.SavedDir, "folder for what the window's editor remembers")->type_name("DIR");
		App.add_option("--project", Window.ProjectDir, "folder that holds the plugin's descriptor")->type_name("DIR");
		AddCreate();
		AddDrive();
	}

	void FArguments::AddCreate()
	{
		CreateCommand = App.add_subcommand("create",
			"Makes a streaming setup from one stream name: a render target, an aimed camera and a sender entry");
		CreateCommand->add_option("NAME", Create.Name, "the stream name (put -- before a name that starts with -)")
			->required();
		CreateCommand->add_option("--level", Create.LevelFile, "level to open first (default: an empty one)")
			->type_name("FILE");
		CreateCommand->add_option("--save", Create.SaveFile, "where to save the level afterwards")->type_name("FILE");
		CreateCommand->add_option("--screenshot", Create.ScreenshotFile, "where a picture of the outcome goes")
			->type_name("PNG");
		CreateCommand->add_flag("--json", Create.bJson, "print one JSON object instead of text");
		CreateCommand->add_option("--saved", Create.SavedDir, "folder for what the editor remembers")->type_name("DIR");
		CreateCommand->add_option("--project", Create.ProjectDir, "folder that holds the plugin's descriptor")
			->type_name("DIR");
	}

	void FArguments::AddDrive()
	{
		DriveCommand = App.add_subcommand(
			"drive", "Plays a recording: one JSON request a line, one answer a line ({\"do\":\"help\"} lists them)");
		DriveCommand->add_option("FILE", Drive.File, "the recording (default: standard input)");
		DriveCommand->add_option("--view", View, "where the editor shows itself: null or qt (default: null)")
			->check(CLI::IsMember({"null", "qt"}))
			->type_name("VIEW");
		DriveCommand->add_option("--saved", Drive.SavedDir, "folder for what the editor remembers")->type_name("DIR");
		// What drive starts behind itself; without a group it stands in no help.
		WorkerCommand = App.add_subcommand("drive-worker")->group("");
		WorkerCommand->add_option("--view", View);
		WorkerCommand->add_option("--saved", Drive.SavedDir)->type_name("DIR");
	}

	FCommandLine CheckDrive(const FArguments& Arguments)
	{
		FCommandLine Result;
		Result.Drive = Arguments.Drive;
		Result.Drive->bWindow = Arguments.View == "qt";
		Result.Drive->bWorker = Arguments.WorkerCommand->parsed();
		return Result;
	}

	FCommandLine Check(const FArguments& Arguments)
	{
		std::u16string Ignored;
		if (Arguments.Create.SavedDir == "" || Arguments.Drive.SavedDir == "" || Arguments.Window.SavedDir == "")
		{
			return Refuse(NoSavedDir);
		}
		if (Arguments.DriveCommand->parsed() || Arguments.WorkerCommand->parsed())
		{
			return CheckDrive(Arguments);
		}
		if (!Arguments.CreateCommand->parsed())
		{
			FCommandLine Result;
			Result.Window = Arguments.Window;
			return Result;
		}
		if (Arguments.Create.ScreenshotFile == "")
		{
			return Refuse(NoScreenshot);
		}
		if (!FUnicode::ToUtf16(Arguments.Create.Name, Ignored))
		{
			return Refuse("NAME is not well-formed UTF-8");
		}
		FCommandLine Result;
		Result.Create = Arguments.Create;
		return Result;
	}
}

FCommandLine FCommandLine::Parse(int ArgumentCount, char** Arguments)
{
	FArguments Parsed;
	try
	{
		Parsed.App.parse(ArgumentCount, Arguments);
	}
	catch (const CLI::CallForHelp&)
	{
		return Print(Parsed.App.help());
	}
	catch (const CLI::CallForVersion& Version)
	{
		return Print(Version.what());
	}
	catch (const CLI::ParseError& Problem)
	{
		return Refuse(Problem.what());
	}
	return Check(Parsed);
}
