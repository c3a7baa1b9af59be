// Copyright Corvane. MIT License.
// What stands in a level file and is refused: always with its place, and without a change to the open level.
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <string>
#include <utility>
#include <vector>

#include "LevelFile.h"
#include "LevelFileFixture.h"

namespace
{
	/** A file's text and the error that it leads to. */
	using FRefusals = std::vector<std::pair<std::string, std::string>>;

	std::string Actor(const std::string& Members)
	{
		return R"({"actors":[{"class":"EveryPropertyActor","name":"A",)" + Members + "}]}";
	}

	std::string Property(const std::string& Name, const std::string& Value)
	{
		return R"({"actors":[{"class":"EveryPropertyActor","name":"A","properties":{")" + Name + "\":" + Value + "}}]}";
	}

	std::string Asset(const std::string& Path)
	{
		return R"({"assets":[{"path":")" + Path + R"(","class":"TextureRenderTarget2D"}]})";
	}

	class FLevelFileRefusal : public FLevelFileFixture
	{
	protected:
		void ExpectAllRefused(const FRefusals& Refusals) const
		{
			for (const auto& [Text, Error] : Refusals)
			{
				SCOPED_TRACE(Text);
				ExpectRefused(Text, Error);
			}
		}

		/** Expects the same reason for several values of one property. */
		void ExpectValuesRefused(
			const std::string& Name, const std::vector<std::string>& Values, const std::string& Reason) const
		{
			for (const std::string& Value : Values)
			{
				SCOPED_TRACE(Value);
				ExpectRefused(Property(Name, Value), "/actors/0/properties/" + Name + ": " + Reason);
			}
		}
	};
}

TEST_F(FLevelFileRefusal, AMissingFile)
{
	const std::string Before = GetState();
	std::string Error;
	EXPECT_FALSE(FLevelFile::Open(Folder.File("none.json"), Error));
	EXPECT_EQ(Error, Folder.File("none.json") + ": No such file or directory");
	EXPECT_EQ(GetState(), Before);
}

TEST_F(FLevelFileRefusal, AnEmptyFile)
{
	ExpectRefused("", "line 1, column 1: unexpected end of input; expected '[', '{', or a literal");
}

TEST_F(FLevelFileRefusal, AFileCutOffAtAnyByteBeforeTheClosingBrace)
{
	const size_t End = SampleText.rfind('}');
	const std::string Before = GetState();
	for (size_t Length = 0; Length < End; ++Length)
	{
		const std::string Error = Open(SampleText.substr(0, Length));
		ASSERT_EQ(Error.substr(0, 5), "line ") << Length;
		ASSERT_EQ(GetState(), Before) << Length;
	}
	EXPECT_EQ(Open(SampleText.substr(0, End + 1)), "");
}

TEST_F(FLevelFileRefusal, AFileOver64MebibytesByItsSize)
{
	const std::string Path = Folder.Write("large.json", "{}");
	ASSERT_EQ(::truncate(Path.c_str(), static_cast<off_t>(FLevelFile::MaxSize) + 1), 0);
	const std::string Before = GetState();
	std::string Error;
	EXPECT_FALSE(FLevelFile::Open(Path, Error));
	EXPECT_EQ(Error, Path + ": larger than 64 MiB");
	EXPECT_EQ(GetState(), Before);
}

TEST_F(FLevelFileRefusal, NestingDeeperThan64Levels)
{
	// The value stands within five levels already: document, actors, actor, properties, Numbers.
	const std::string Deep = std::string(60, '[') + std::string(60, ']');
	std::string Place = "/actors/0/properties/Numbers";
	for (int Level = 0; Level < 60; ++Level)
	{
		Place += "/0";
	}
	ExpectRefused(Property("Numbers", "[" + Deep + "]"), Place + ": nested deeper than 64 levels");
}

TEST_F(FLevelFileRefusal, WhatIsNoLevel)
{
	ExpectAllRefused({
		{"[]", "top level: an object is wanted"},
		{"3", "top level: an object is wanted"},
		{R"({"view":{},"view":{}})", "/view: this key stands twice in its object"},
		{R"({"views":{}})", "/views: unknown key"},
		{R"({"a/b~":{}})", "/a~1b~0: unknown key"},
		{R"({"view":[]})", "/view: an object is wanted"},
		{R"({"actors":{}})", "/actors: an array is wanted"},
		{R"({"assets":null})", "/assets: an array is wanted"},
		{"{\"view\":\"\xFF\"}", "line 1, column 10: invalid string: ill-formed UTF-8 byte"},
	});
}

TEST_F(FLevelFileRefusal, Places)
{
	ExpectAllRefused({
		{R"({"view":{"position":[0,0,0]}})", "/view/position: unknown key"},
		{R"({"view":{"location":[0,0]}})", "/view/location: an array of three numbers is wanted"},
		{R"({"view":{"location":"0,0,0"}})", "/view/location: an array of three numbers is wanted"},
		{R"({"view":{"rotation":[0,"0",0]}})", "/view/rotation/1: a number is wanted"},
		{R"({"view":{"rotation":[0,0,3.5e38]}})", "/view/rotation/2: the number does not fit into 32 bits"},
		{R"({"view":{"rotation":[0,0,1e999]}})", "line 1, column 30: number too large"},
		{Actor(R"("location":[0,0,0,0])"), "/actors/0/location: an array of three numbers is wanted"},
		{Actor(R"("rotation":[null,0,0])"), "/actors/0/rotation/0: a number is wanted"},
		{R"({"actors":[{"class":"Actor","name":"A","location":[0,1,0]}]})",
			"/actors/0: actors of this class have no place in the world"},
	});
}

TEST_F(FLevelFileRefusal, ActorsWithoutClassOrName)
{
	ExpectAllRefused({
		{R"({"actors":[7]})", "/actors/0: an object is wanted"},
		{R"({"actors":[{"name":"A"}]})", "/actors/0: the key \"class\" is missing"},
		{R"({"actors":[{"class":"Actor"}]})", "/actors/0: the key \"name\" is missing"},
		{R"({"actors":[{"class":"Actor","name":"A","label":"x"}]})", "/actors/0/label: unknown key"},
		{R"({"actors":[{"class":3,"name":"A"}]})", "/actors/0/class: a text is wanted"},
		{R"({"actors":[{"class":"Chair","name":"A"}]})", "/actors/0/class: \"Chair\" is no class of actors"},
		{R"({"actors":[{"class":"","name":"A"}]})", "/actors/0/class: \"\" is no class of actors"},
		{R"({"actors":[{"class":"actor","name":"A"}]})", "/actors/0/class: \"actor\" is no class of actors"},
		{R"({"actors":[{"class":"SceneComponent","name":"A"}]})",
			"/actors/0/class: \"SceneComponent\" is no class of actors"},
		{R"({"actors":[{"class":"/Script/Engine.Actor","name":"A"}]})",
			"/actors/0/class: \"/Script/Engine.Actor\" is no class of actors"},
	});
}

TEST_F(FLevelFileRefusal, NamesOfActors)
{
	const std::string Long(1024, 'x');
	ExpectAllRefused({
		{R"({"actors":[{"class":"Actor","name":3}]})", "/actors/0/name: a text is wanted"},
		{R"({"actors":[{"class":"Actor","name":""}]})", "/actors/0/name: an actor needs a name other than None"},
		{R"({"actors":[{"class":"Actor","name":"none"}]})", "/actors/0/name: an actor needs a name other than None"},
		{R"({"actors":[{"class":"Actor","name":"a/b"}]})", "/actors/0/name: an actor's name can't hold any of / . :"},
		{R"({"actors":[{"class":"Actor","name":"a\u0000"}]})", "/actors/0/name: the text holds a null character"},
		{R"({"actors":[{"class":"Actor","name":")" + Long + R"("}]})",
			"/actors/0/name: the name is longer than 1023 units"},
		{R"({"actors":[{"class":"Actor","name":"A"},{"class":"Actor","name":"A"}]})",
			"/actors/1/name: an actor of this name stands in the file already"},
		{R"({"actors":[{"class":"Actor","name":"A_1"},{"class":"Actor","name":"a_1"}]})",
			"/actors/1/name: an actor of this name stands in the file already"},
	});
}

TEST_F(FLevelFileRefusal, Assets)
{
	const std::string NoPath = "/assets/0/path: this is no path of an asset below /Game/";
	ExpectAllRefused({
		{R"({"assets":[{"class":"TextureRenderTarget2D"}]})", "/assets/0: the key \"path\" is missing"},
		{R"({"assets":[{"path":"/Game/A"}]})", "/assets/0: the key \"class\" is missing"},
		{R"({"assets":[{"path":"/Game/A","class":"TextureRenderTarget2D","size":3}]})", "/assets/0/size: unknown key"},
		{R"({"assets":[{"path":null,"class":"TextureRenderTarget2D"}]})", "/assets/0/path: a text is wanted"},
		{R"({"assets":[{"path":"/Game/A","class":"Picture"}]})", "/assets/0/class: \"Picture\" is no class of assets"},
		{R"({"assets":[{"path":"/Game/A","class":"Texture"}]})", "/assets/0/class: \"Texture\" is no class of assets"},
		{R"({"assets":[{"path":"/Game/A","class":"Actor"}]})", "/assets/0/class: \"Actor\" is no class of assets"},
		{R"({"assets":[{"path":"/Game/A","class":"World"}]})", "/assets/0/class: \"World\" is no class of assets"},
		{Asset("Main"), NoPath},
		{Asset("/Engine/Main"), NoPath},
		{Asset("/Game/"), NoPath},
		{Asset("/Game//A"), NoPath},
		{Asset("/Game/A/"), NoPath},
		{Asset("/Game/A B"), NoPath},
		{Asset("/Game/A.A"), NoPath},
		{Asset("/Game/" + std::string(1018, 'x')), "/assets/0/path: the name is longer than 1023 units"},
		{R"({"assets":[{"path":"/Game/A","class":"TextureRenderTarget2D"},)"
		 R"({"path":"/Game/a","class":"TextureRenderTarget2D"}]})",
			"/assets/1/path: an asset of this path stands in the file already"},
	});
}

TEST_F(FLevelFileRefusal, UnknownProperties)
{
	const std::string Unknown = "unknown property of EveryPropertyActor";
	ExpectRefused(Actor(R"("properties":[])"), "/actors/0/properties: an object is wanted");
	ExpectValuesRefused("Nothing", {"3"}, Unknown);
	// Letter case matters, and so does whether a user sees the property.
	ExpectValuesRefused("number", {"3"}, Unknown);
	ExpectValuesRefused("Hidden", {"3"}, Unknown);
	ExpectValuesRefused("Passing", {"3"}, Unknown);
	ExpectValuesRefused("RootComponent", {"null"}, Unknown);
	ExpectRefused(
		Property("Inner", R"({"Size":1})"), "/actors/0/properties/Inner/Size: unknown property of EveryPropertyStruct");
	ExpectRefused(Property("Component", R"({"RelativeLocation":{}})"),
		"/actors/0/properties/Component/RelativeLocation: unknown property of EveryPropertyComponent");
	ExpectRefused(
		Property(std::string(1100, 'x'), "1"), "/actors/0/properties/" + std::string(1100, 'x') + ": " + Unknown);
}

TEST_F(FLevelFileRefusal, ValuesOfAnotherType)
{
	ExpectValuesRefused("bFlag", {"1", "\"true\"", "null", "[]", "{}"}, "true or false is wanted");
	ExpectValuesRefused("Number", {"true", "\"1\"", "null", "5.0", "1e3", "[]"}, "a whole number is wanted");
	ExpectValuesRefused("Number", {"2147483648", "-2147483649", "18446744073709551615", "9223372036854775807"},
		"the number does not fit into 32 bits");
	ExpectValuesRefused("Fraction", {"true", "\"1\"", "null", "[]"}, "a number is wanted");
	ExpectValuesRefused("Fraction", {"3.4028236e38", "-1e300"}, "the number does not fit into 32 bits");
	ExpectValuesRefused("Text", {"1", "null", "[\"a\"]", "{}"}, "a text is wanted");
	ExpectValuesRefused("Text", {R"("a\u0000b")"}, "the text holds a null character");
	ExpectValuesRefused("Label", {"1", "null"}, "a text is wanted");
	ExpectValuesRefused("Label", {"\"" + std::string(1024, 'x') + "\""}, "the name is longer than 1023 units");
	ExpectValuesRefused("Inner", {"1", "null", "[]", "\"x\""}, "an object is wanted");
	ExpectValuesRefused("Numbers", {"1", "null", "{}", "\"x\""}, "an array is wanted");
	ExpectValuesRefused("Component", {"1", "null", "[]", "\"A\""}, "an object is wanted");
	ExpectValuesRefused("Translated", {"\"x\"", "null"}, "properties of this kind can't stand in a level file");
}

TEST_F(FLevelFileRefusal, ValuesWithinOthers)
{
	ExpectAllRefused({
		{Property("Numbers", "[1,2,false]"), "/actors/0/properties/Numbers/2: a whole number is wanted"},
		{Property("Structs", R"([{},{"Count":"7"}])"),
			"/actors/0/properties/Structs/1/Count: a whole number is wanted"},
		{Property("Structs", "[{},3]"), "/actors/0/properties/Structs/1: an object is wanted"},
		{Property("Inner", R"({"Offset":{"X":"1"}})"), "/actors/0/properties/Inner/Offset/X: a number is wanted"},
		{Property("Component", R"({"Notes":["a",1]})"), "/actors/0/properties/Component/Notes/1: a text is wanted"},
	});
}

TEST_F(FLevelFileRefusal, References)
{
	const std::string Wanted = "an asset's path, an actor's name or null is wanted";
	ExpectValuesRefused("Texture", {"1", "true", "[]", "{}", "\"" + std::string(1024, 'x') + "\""}, Wanted);
	ExpectValuesRefused("Texture", {"\"/Game/None\""}, "no asset or actor \"/Game/None\" in this level");
	ExpectValuesRefused("Texture", {"\"\""}, "no asset or actor \"\" in this level");
	// An asset of the level that is open now does not count.
	ExpectValuesRefused(
		"Texture", {"\"/Game/CineStream/Main\""}, "no asset or actor \"/Game/CineStream/Main\" in this level");
	ExpectValuesRefused("Texture", {"\"A\""}, "\"A\" is no TextureRenderTarget2D");
	ExpectRefused(Property("Actors", R"(["A",null,"B"])"),
		"/actors/0/properties/Actors/2: no asset or actor \"B\" in this level");
}

TEST_F(FLevelFileRefusal, AFaultInTheLastActorLeavesTheFirstUnmade)
{
	ExpectRefused(R"({"view":{"location":[9,9,9]},"assets":[{"path":"/Game/New","class":"TextureRenderTarget2D"}],)"
				  R"("actors":[{"class":"Actor","name":"Good"},)"
				  R"({"class":"EveryPropertyActor","name":"Bad","properties":{"Number":"x"}}]})",
		"/actors/1/properties/Number: a whole number is wanted");
}
