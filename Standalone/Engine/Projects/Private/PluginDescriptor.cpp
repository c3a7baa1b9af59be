// Copyright Corvane. MIT License.
#include <nlohmann/json.hpp>

#include "PluginDescriptor.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace
{
	using FJson = nlohmann::json;

	/** Why a descriptor is refused: where in the file, and what is wrong there. */
	struct FDescriptorError
	{
		std::string Place;
		std::string Reason;
	};

	FString ToText(const std::string& Utf8)
	{
		return FString(FUTF8ToTCHAR(Utf8.c_str(), static_cast<int32>(Utf8.size())).Get());
	}

	std::string ReadFile(const FString& FileName)
	{
		std::ifstream File(TCHAR_TO_UTF8(*FileName), std::ios::binary);
		std::ostringstream Content;
		// A folder opens like a file and fails at the first read, so that nothing at all arrives: without this test it
		// would look like an empty file.
		if (!File || (File.peek() == std::ifstream::traits_type::eof() && File.bad()))
		{
			throw FDescriptorError{"", "cannot be read"};
		}
		Content << File.rdbuf();
		if (Content.str().empty())
		{
			throw FDescriptorError{"", "is empty"};
		}
		return Content.str();
	}

	FJson Parse(const std::string& Content)
	{
		try
		{
			return FJson::parse(Content);
		}
		catch (const FJson::parse_error& Error)
		{
			const std::string Before = Content.substr(0, Error.byte == 0 ? 0 : Error.byte - 1);
			const std::size_t LineStart = Before.rfind('\n') == std::string::npos ? 0 : Before.rfind('\n') + 1;
			const auto Line = std::count(Before.begin(), Before.end(), '\n') + 1;
			throw FDescriptorError{
				"line " + std::to_string(Line) + ", column " + std::to_string(Before.size() - LineStart + 1),
				"is not JSON"};
		}
	}

	/** A JSON object of the descriptor, with its place as a JSON pointer. */
	class FFields
	{
	public:
		FFields(const FJson& InObject, const std::string& InPlace) : Object(InObject), Place(InPlace)
		{
			Require(Object.is_object(), Place.empty() ? "/" : Place, "should be an object");
		}

		void ReadText(const char* Key, FString& OutText) const
		{
			if (const FJson* Value = Find(Key))
			{
				Require(Value->is_string(), PlaceOf(Key), "should be a text");
				OutText = ToText(Value->get<std::string>());
			}
		}

		void ReadNumber(const char* Key, int32& OutNumber) const
		{
			if (const FJson* Value = Find(Key))
			{
				// The parser keeps what is not negative as unsigned; the largest would turn negative as a signed
				// number.
				const bool bFits = Value->is_number_unsigned()
					? Value->get<uint64>() <= INT32_MAX
					: Value->is_number_integer() && Value->get<int64>() >= INT32_MIN;
				Require(bFits, PlaceOf(Key), "should be a whole number of 32 bits");
				OutNumber = Value->get<int32>();
			}
		}

		/** A text that FromString turns into one of an enum's values. */
		template <typename EnumType>
		void ReadEnum(
			const char* Key, EnumType (*FromString)(const TCHAR*), EnumType NotFound, EnumType& OutValue) const
		{
			FString Text;
			ReadText(Key, Text);
			if (Find(Key))
			{
				OutValue = FromString(*Text);
				Require(OutValue != NotFound, PlaceOf(Key), "is not a known value");
			}
		}

		/** Calls Read with each element of a list and its place. */
		template <typename FunctionType>
		void ReadList(const char* Key, FunctionType Read) const
		{
			const FJson* List = Find(Key);
			Require(!List || List->is_array(), PlaceOf(Key), "should be a list");
			for (std::size_t Index = 0; List && Index < List->size(); ++Index)
			{
				Read((*List)[Index], PlaceOf(Key) + "/" + std::to_string(Index));
			}
		}

		static void Require(bool bCondition, const std::string& Place, const char* Reason)
		{
			if (!bCondition)
			{
				throw FDescriptorError{Place, Reason};
			}
		}

		std::string PlaceOf(const char* Key) const { return Place + "/" + Key; }

	private:
		const FJson* Find(const char* Key) const
		{
			const auto Found = Object.find(Key);
			return Found == Object.end() ? nullptr : &*Found;
		}

		const FJson& Object;
		std::string Place;
	};

	FModuleDescriptor ReadModule(const FJson& Json, const std::string& Place)
	{
		FModuleDescriptor Module;
		const FFields Fields(Json, Place);
		FString Name;
		Fields.ReadText("Name", Name);
		// Names are limited, and the plugin's module is a file as well: no such name is meant seriously.
		FFields::Require(
			!Name.IsEmpty() && Name.Len() < NAME_SIZE, Fields.PlaceOf("Name"), "should be the module's name");
		Module.Name = FName(*Name);
		Fields.ReadEnum("Type", &EHostType::FromString, EHostType::Max, Module.Type);
		Fields.ReadEnum("LoadingPhase", &ELoadingPhase::FromString, ELoadingPhase::Max, Module.LoadingPhase);
		Fields.ReadList("WhitelistPlatforms",
			[&Module](const FJson& Platform, const std::string& PlatformPlace)
			{
				FFields::Require(Platform.is_string(), PlatformPlace, "should be a text");
				Module.WhitelistPlatforms.Add(ToText(Platform.get<std::string>()));
			});
		return Module;
	}

	FPluginDescriptor ReadDescriptor(const FJson& Json)
	{
		FPluginDescriptor Descriptor;
		const FFields Fields(Json, "");
		Fields.ReadNumber("Version", Descriptor.Version);
		Fields.ReadText("VersionName", Descriptor.VersionName);
		Fields.ReadText("FriendlyName", Descriptor.FriendlyName);
		Fields.ReadText("Description", Descriptor.Description);
		Fields.ReadText("EngineVersion", Descriptor.EngineVersion);
		Fields.ReadList("Modules",
			[&Descriptor](const FJson& Module, const std::string& Place)
			{ Descriptor.Modules.Add(ReadModule(Module, Place)); });
		return Descriptor;
	}
}

bool FPluginDescriptor::Load(const FString& FileName, FText& OutFailReason)
{
	try
	{
		*this = ReadDescriptor(Parse(ReadFile(FileName)));
		return true;
	}
	catch (const FDescriptorError& Error)
	{
		const FString Place = Error.Place.empty() ? FString() : ToText(Error.Place + ": ");
		OutFailReason = FText::FromString(FileName + TEXT(": ") + Place + ToText(Error.Reason));
		return false;
	}
}
