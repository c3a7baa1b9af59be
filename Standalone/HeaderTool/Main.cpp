// Copyright Corvane. MIT License.
#include "Generator.h"
#include "Lexer.h"
#include "Parser.h"
#include "SourceError.h"

#include <cctype>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>

namespace
{
	namespace fs = std::filesystem;

	struct FArguments
	{
		std::string Module;
		std::string Root;
		std::string Output;
		std::vector<std::string> Headers;
	};

	/** False if they make no sense. */
	bool ReadArguments(int Count, char** Values, FArguments& Arguments)
	{
		const std::map<std::string, std::string*> Options = {
			{"--module", &Arguments.Module}, {"--root", &Arguments.Root}, {"--output", &Arguments.Output}};
		for (int Index = 1; Index < Count; ++Index)
		{
			const auto Option = Options.find(Values[Index]);
			if (Option == Options.end())
			{
				Arguments.Headers.push_back(Values[Index]);
			}
			else if (++Index < Count)
			{
				*Option->second = Values[Index];
			}
			else
			{
				return false;
			}
		}
		return !Arguments.Module.empty() && !Arguments.Root.empty() && !Arguments.Output.empty();
	}

	bool ReadFile(const std::string& Path, std::string& Content)
	{
		std::ifstream File(Path, std::ios::binary);
		std::ostringstream Text;
		Text << File.rdbuf();
		Content = Text.str();
		return File.is_open() && !File.bad();
	}

	/** An unchanged file keeps its time, so that nothing is compiled without need. */
	void WriteIfChanged(const fs::path& Path, const std::string& Content)
	{
		std::string Old;
		if (ReadFile(Path.string(), Old) && Old == Content)
		{
			return;
		}
		std::ofstream File(Path, std::ios::binary | std::ios::trunc);
		File << Content;
		File.close();
		if (!File)
		{
			throw std::runtime_error(Path.string() + ": can't be written");
		}
	}

	/** Includes are relative to the module's public or private folder; a header elsewhere is included as it was named.
	 */
	std::string GetIncludePath(const std::string& Path)
	{
		for (const char* Folder : {"/Public/", "/Private/"})
		{
			const size_t Found = Path.rfind(Folder);
			if (Found != std::string::npos)
			{
				return Path.substr(Found + std::string(Folder).size());
			}
		}
		return Path;
	}

	std::string MakeFileId(const std::string& Path, const std::string& Root)
	{
		std::string Id = fs::path(Path).lexically_proximate(Root).string();
		for (char& Char : Id)
		{
			Char = std::isalnum(static_cast<unsigned char>(Char)) ? Char : '_';
		}
		return std::isdigit(static_cast<unsigned char>(Id[0])) ? "_" + Id : Id;
	}

	FHeader ReadHeader(const std::string& Path, const std::string& Root)
	{
		FHeader Header;
		Header.Path = Path;
		Header.IncludePath = GetIncludePath(Path);
		Header.Stem = fs::path(Path).stem().string();
		Header.FileId = MakeFileId(Path, Root);
		std::string Source;
		if (!ReadFile(Path, Source))
		{
			throw FSourceError(1, "can't be read");
		}
		Header.Types = FParser(FLexer(Source).Run(), Header.Stem).Run();
		return Header;
	}

	/** Type names and generated files are one per module. */
	void CheckUnique(const FHeader& Header, const std::vector<FHeader>& Others)
	{
		for (const FHeader& Other : Others)
		{
			if (Other.Stem == Header.Stem)
			{
				throw FSourceError(1, "a header of the same name is " + Other.Path);
			}
			for (const FReflectedType& Type : Header.Types)
			{
				for (const FReflectedType& OtherType : Other.Types)
				{
					if (Type.Name.substr(1) == OtherType.Name.substr(1))
					{
						throw FSourceError(
							Type.Line, Type.Name + " has the name of " + OtherType.Name + " in " + Other.Path);
					}
				}
			}
		}
	}

	/** Reads all headers and reports each faulty one. */
	bool ReadHeaders(const FArguments& Arguments, std::vector<FHeader>& Headers)
	{
		bool bGood = true;
		for (const std::string& Path : Arguments.Headers)
		{
			try
			{
				FHeader Header = ReadHeader(Path, Arguments.Root);
				CheckUnique(Header, Headers);
				Headers.push_back(std::move(Header));
			}
			catch (const FSourceError& Error)
			{
				std::cerr << Path << ":" << Error.Line << ": " << Error.what() << "\n";
				bGood = false;
			}
		}
		return bGood;
	}
}

int main(int Count, char** Values)
{
	FArguments Arguments;
	if (!ReadArguments(Count, Values, Arguments))
	{
		std::cerr << "usage: HeaderTool --module NAME --root DIR --output DIR HEADER...\n";
		return 1;
	}
	std::vector<FHeader> Headers;
	if (!ReadHeaders(Arguments, Headers))
	{
		return 1;
	}
	try
	{
		const FGenerator Generator(Arguments.Module);
		const fs::path Output(Arguments.Output);
		fs::create_directories(Output);
		for (const FHeader& Header : Headers)
		{
			WriteIfChanged(Output / (Header.Stem + ".generated.h"), Generator.MakeHeader(Header));
			WriteIfChanged(Output / (Header.Stem + ".gen.cpp"), Generator.MakeSource(Header));
		}
		WriteIfChanged(Output / (Arguments.Module + ".init.gen.cpp"), Generator.MakeInit(Headers));
	}
	catch (const std::exception& Error)
	{
		std::cerr << Error.what() << "\n";
		return 1;
	}
	return 0;
}
