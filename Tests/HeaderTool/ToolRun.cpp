// Copyright Corvane. MIT License.
#include "ToolRun.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace fs = std::filesystem;

namespace
{
	std::string ReadFile(const fs::path& Path)
	{
		std::ifstream File(Path, std::ios::binary);
		std::ostringstream Text;
		Text << File.rdbuf();
		return Text.str();
	}
}

FToolRun::FToolRun()
{
	std::string Pattern = (fs::temp_directory_path() / "HeaderToolXXXXXX").string();
	if (!mkdtemp(Pattern.data()))
	{
		throw std::runtime_error("no temporary folder");
	}
	Folder = Pattern;
	fs::create_directories(Folder / "Module/Public");
}

FToolRun::~FToolRun()
{
	fs::remove_all(Folder);
}

void FToolRun::Write(const std::string& Name, const std::string& Text) const
{
	std::ofstream(Folder / "Module/Public" / Name, std::ios::binary) << Text;
}

bool FToolRun::Run(const std::vector<std::string>& Headers)
{
	std::string Arguments = "--module Probe --root " + Folder.string() + " --output " + (Folder / "Output").string();
	for (const std::string& Header : Headers)
	{
		Arguments += " " + (Folder / "Module/Public" / Header).string();
	}
	return RunWith(Arguments);
}

bool FToolRun::RunWith(const std::string& Arguments)
{
	const fs::path Log = Folder / "messages";
	const int Status = std::system(("'" HEADER_TOOL "' " + Arguments + " 2>" + Log.string()).c_str());
	ExitStatus = WIFEXITED(Status) ? WEXITSTATUS(Status) : -1;
	Messages = ReadFile(Log);
	const std::string Prefix = (Folder / "Module/Public").string() + "/";
	for (size_t Found = Messages.find(Prefix); Found != std::string::npos; Found = Messages.find(Prefix))
	{
		Messages.erase(Found, Prefix.size());
	}
	return ExitStatus == 0;
}

std::string FToolRun::ReadOutput(const std::string& Name) const
{
	return ReadFile(GetOutput(Name));
}
