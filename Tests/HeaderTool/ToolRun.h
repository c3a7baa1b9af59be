// Copyright Corvane. MIT License.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

/** A folder of headers that HeaderTool is run over; it vanishes with the object. */
class FToolRun
{
public:
	FToolRun();
	~FToolRun();
	FToolRun(const FToolRun&) = delete;
	FToolRun& operator=(const FToolRun&) = delete;

	/** Writes a header into the module's Public folder. */
	void Write(const std::string& Name, const std::string& Text) const;
	/** Runs the tool over these headers; true if its exit status was 0. */
	bool Run(const std::vector<std::string>& Headers);
	/** Runs the tool with these arguments. */
	bool RunWith(const std::string& Arguments);

	/** Standard error of the last run, with the folder left out of the paths. */
	const std::string& GetMessages() const { return Messages; }
	int GetExitStatus() const { return ExitStatus; }
	std::filesystem::path GetOutput(const std::string& Name) const { return Folder / "Output" / Name; }
	std::string ReadOutput(const std::string& Name) const;
	const std::filesystem::path& GetFolder() const { return Folder; }

private:
	std::filesystem::path Folder;
	std::string Messages;
	int ExitStatus = -1;
};
