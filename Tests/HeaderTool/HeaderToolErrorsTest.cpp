// Copyright Corvane. MIT License.
#include "ToolRun.h"

#include <gtest/gtest.h>

namespace
{
	/** What the tool says to one header named Thing.h. */
	std::string Refuse(const std::string& Text)
	{
		FToolRun Tool;
		Tool.Write("Thing.h", Text);
		const bool bAccepted = Tool.Run({"Thing.h"});
		EXPECT_EQ(bAccepted, Tool.GetMessages().empty());
		EXPECT_EQ(Tool.GetExitStatus(), bAccepted ? 0 : 1);
		EXPECT_EQ(std::filesystem::exists(Tool.GetOutput("Thing.gen.cpp")), bAccepted);
		return Tool.GetMessages();
	}

	/** The same for the members of a class, of which the first stands in line 6. */
	std::string RefuseMembers(const std::string& Members)
	{
		return Refuse(
			"#include \"Thing.generated.h\"\nUCLASS()\nclass UThing : public UObject\n{\n\tGENERATED_BODY()\n" +
			Members + "\n};\n");
	}

	/** The same for a property of that type and rest. */
	std::string RefuseProperty(const std::string& Declaration)
	{
		return RefuseMembers("public:\n\tUPROPERTY()\n\t" + Declaration);
	}

	/** The same for a property with these specifiers. */
	std::string RefuseSpecifiers(const std::string& Specifiers)
	{
		return RefuseMembers("public: UPROPERTY(" + Specifiers + ") int32 A;");
	}

	/** The same for a class with that text in front of its body. */
	std::string RefuseHead(const std::string& Head)
	{
		return Refuse("#include \"Thing.generated.h\"\n" + Head + "\n{\n\tGENERATED_BODY()\n};\n");
	}
}

TEST(HeaderTool, AcceptsASoundHeader)
{
	EXPECT_EQ(RefuseMembers("public:\n\tUPROPERTY(EditAnywhere)\n\tint32 A = 1;"), "");
	EXPECT_EQ(RefuseHead("USTRUCT()\nstruct THING_API FThing final : public FBase"), "");
	EXPECT_EQ(
		RefuseHead("UCLASS(Abstract, DefaultToInstanced)\nclass THING_API AThing final : public AActor, public IThing"),
		"");
}

TEST(HeaderTool, RefusesUnknownPropertyTypes)
{
	EXPECT_EQ(RefuseProperty("double A;"), "Thing.h:8: unknown property type 'double'\n");
	EXPECT_EQ(RefuseProperty("uint8 A;"), "Thing.h:8: unknown property type 'uint8'\n");
	EXPECT_EQ(RefuseProperty("EThing A;"), "Thing.h:8: unknown property type 'EThing'\n");
	EXPECT_EQ(RefuseProperty("TArray<EThing> A;"), "Thing.h:8: unknown property type 'EThing'\n");
	EXPECT_EQ(RefuseProperty("static int32 A;"), "Thing.h:8: unknown property type 'static'\n");
	EXPECT_EQ(RefuseProperty("const int32 A;"), "Thing.h:8: unknown property type 'const'\n");
	EXPECT_EQ(RefuseProperty("IThing* A;"),
		"Thing.h:8: a pointer to 'IThing', which is no class of objects, is not supported\n");
}

TEST(HeaderTool, RefusesTemplatesOtherThanFlatArrays)
{
	EXPECT_EQ(
		RefuseProperty("TMap<FName, int32> A;"), "Thing.h:8: template 'TMap' is not supported as a property's type\n");
	EXPECT_EQ(RefuseProperty("TSet<FName> A;"), "Thing.h:8: template 'TSet' is not supported as a property's type\n");
	EXPECT_EQ(RefuseProperty("TSubclassOf<AActor> A;"),
		"Thing.h:8: template 'TSubclassOf' is not supported as a property's type\n");
	EXPECT_EQ(RefuseProperty("TArray<TArray<int32>> A;"), "Thing.h:8: an array of arrays is not supported\n");
	EXPECT_EQ(RefuseProperty("TArray<TMap<int32, int32>> A;"),
		"Thing.h:8: template 'TMap' is not supported as a property's type\n");
	EXPECT_EQ(RefuseProperty("TArray<bool> A;"), "Thing.h:8: an array of bool is not supported\n");
	EXPECT_EQ(RefuseProperty("TArray<int32>* A;"), "Thing.h:8: a pointer to an array is not supported\n");
	EXPECT_EQ(RefuseProperty("TArray<int32, FAllocator> A;"),
		"Thing.h:8: expected '>' after the type of TArray's elements but found ','\n");
	EXPECT_EQ(RefuseProperty("TArray A;"), "Thing.h:8: expected '<' after TArray but found 'A'\n");
}

TEST(HeaderTool, RefusesPointersToAnythingButObjects)
{
	EXPECT_EQ(RefuseProperty("int32* A;"),
		"Thing.h:8: a pointer to 'int32', which is no class of objects, is not supported\n");
	EXPECT_EQ(RefuseProperty("FThing* A;"),
		"Thing.h:8: a pointer to 'FThing', which is no class of objects, is not supported\n");
	EXPECT_EQ(RefuseProperty("TArray<FString*> A;"),
		"Thing.h:8: a pointer to 'FString', which is no class of objects, is not supported\n");
	EXPECT_EQ(RefuseProperty("UThing** A;"), "Thing.h:8: unsupported '*' in a property's type\n");
	EXPECT_EQ(RefuseProperty("UThing A;"), "Thing.h:8: objects are held by pointer: 'UThing*'\n");
	EXPECT_EQ(RefuseProperty("FThing& A;"), "Thing.h:8: unsupported '&' in a property's type\n");
	EXPECT_EQ(RefuseProperty("UThing* const A;"), "Thing.h:8: unsupported 'const' in a property's type\n");
	EXPECT_EQ(RefuseProperty("Space::FThing A;"), "Thing.h:8: unsupported '::' in a property's type\n");
}

TEST(HeaderTool, RefusesOddDeclarationsOfProperties)
{
	EXPECT_EQ(RefuseProperty("uint8 bA : 1;"), "Thing.h:8: bit fields are not supported, use bool\n");
	EXPECT_EQ(RefuseProperty("bool bA : 1;"), "Thing.h:8: bit fields are not supported, use bool\n");
	EXPECT_EQ(RefuseProperty("int32 A[4];"), "Thing.h:8: arrays of fixed size are not supported, use TArray\n");
	EXPECT_EQ(RefuseProperty("int32 A, B;"), "Thing.h:8: one declaration can't make several properties\n");
	EXPECT_EQ(RefuseProperty("int32 A"), "Thing.h:9: expected ';' after property A but found '}'\n");
	EXPECT_EQ(RefuseProperty("int32 A = 1"), "Thing.h:8: expected ';' after property A\n");
	EXPECT_EQ(RefuseProperty("int32 A = (1;"), "Thing.h:8: the initial values of A are not closed\n");
	EXPECT_EQ(RefuseProperty("int32 A{1}"), "Thing.h:9: expected ';' after property A but found '}'\n");
	EXPECT_EQ(RefuseProperty("int32;"), "Thing.h:8: expected a property's name but found ';'\n");
	EXPECT_EQ(RefuseProperty("int32 Function();"), "Thing.h:8: expected ';' after property Function but found '('\n");
	EXPECT_EQ(RefuseProperty("UPROPERTY() int32 A;"),
		"Thing.h:8: UPROPERTY must be followed by a declaration, found 'UPROPERTY'\n");
	EXPECT_EQ(RefuseProperty("}"), "Thing.h:8: expected a property's type but found '}'\n");
}

TEST(HeaderTool, RefusesUnknownSpecifiers)
{
	EXPECT_EQ(RefuseSpecifiers("Replicated"), "Thing.h:6: unknown specifier 'Replicated'\n");
	EXPECT_EQ(RefuseSpecifiers("EditAnywhere, Config"), "Thing.h:6: unknown specifier 'Config'\n");
	EXPECT_EQ(
		RefuseHead("UCLASS(MinimalAPI)\nclass UThing : public UObject"), "Thing.h:2: unknown specifier 'MinimalAPI'\n");
	EXPECT_EQ(RefuseHead("UCLASS(\n\tBlueprintType,\n\tConfig = Game)\nclass UThing : public UObject"),
		"Thing.h:4: unknown specifier 'Config'\n");
	EXPECT_EQ(RefuseHead("USTRUCT(Atomic)\nstruct FThing"), "Thing.h:2: unknown specifier 'Atomic'\n");
	EXPECT_EQ(RefuseMembers("\tUFUNCTION(Server)\n\tvoid A();"), "Thing.h:6: unknown specifier 'Server'\n");
}

TEST(HeaderTool, RefusesMalformedSpecifiers)
{
	EXPECT_EQ(RefuseSpecifiers("EditAnywhere,"), "Thing.h:6: expected a specifier but found ')'\n");
	EXPECT_EQ(RefuseSpecifiers("EditAnywhere BlueprintReadOnly"),
		"Thing.h:6: expected ')' after the specifiers but found 'BlueprintReadOnly'\n");
	EXPECT_EQ(RefuseSpecifiers("EditAnywhere = 1"), "Thing.h:6: specifier 'EditAnywhere' takes no value\n");
	EXPECT_EQ(RefuseSpecifiers("Category"), "Thing.h:6: expected '=' after 'Category' but found ')'\n");
	EXPECT_EQ(RefuseSpecifiers("Category ="), "Thing.h:6: expected a value for 'Category' but found ')'\n");
	EXPECT_EQ(
		RefuseSpecifiers("Category = TEXT(\"A\")"), "Thing.h:6: expected ')' after the specifiers but found '('\n");
	EXPECT_EQ(
		RefuseSpecifiers("meta = DisplayName"), "Thing.h:6: expected '(' after 'meta=' but found 'DisplayName'\n");
	EXPECT_EQ(RefuseSpecifiers("meta = (A = )"), "Thing.h:6: expected a value for 'A' but found ')'\n");
	EXPECT_EQ(RefuseSpecifiers("meta = (A = -B)"), "Thing.h:6: expected a value for 'A' but found 'B'\n");
	EXPECT_EQ(RefuseSpecifiers("\"EditAnywhere\""), "Thing.h:6: expected a specifier but found 'EditAnywhere'\n");
	EXPECT_EQ(
		RefuseMembers("\tUPROPERTY int32 A;"), "Thing.h:6: expected '(' after the macro's name but found 'int32'\n");
}

TEST(HeaderTool, RefusesRepeatedAndContradictingSpecifiers)
{
	EXPECT_EQ(RefuseSpecifiers("Transient, transient"), "Thing.h:6: specifier 'transient' is given twice\n");
	EXPECT_EQ(RefuseSpecifiers("EditAnywhere, VisibleAnywhere"),
		"Thing.h:6: specifier 'VisibleAnywhere' contradicts another edit specifier\n");
	EXPECT_EQ(RefuseSpecifiers("BlueprintReadOnly, BlueprintReadWrite"),
		"Thing.h:6: specifier 'BlueprintReadWrite' contradicts another blueprint specifier\n");
	EXPECT_EQ(RefuseSpecifiers("meta = (A = 1, a = 2)"), "Thing.h:6: metadata 'a' is given twice\n");
	EXPECT_EQ(
		RefuseSpecifiers("Instanced"), "Thing.h:6: Instanced needs a pointer to an object, or an array of them\n");
}

TEST(HeaderTool, RefusesBlueprintAccessToPrivateMembers)
{
	EXPECT_EQ(RefuseMembers("\tUPROPERTY(BlueprintReadOnly)\n\tint32 A;"),
		"Thing.h:6: BlueprintReadOnly or BlueprintReadWrite on a private member needs meta=(AllowPrivateAccess=true)\n");
	EXPECT_EQ(RefuseMembers("\tUPROPERTY(BlueprintReadOnly, meta = (AllowPrivateAccess = \"true\"))\n\tint32 A;"), "");
	EXPECT_EQ(RefuseMembers("protected:\n\tUPROPERTY(BlueprintReadOnly)\n\tint32 A;"), "");
}

TEST(HeaderTool, RefusesMacrosThatItLeavesOut)
{
	EXPECT_EQ(Refuse("UENUM()\nenum class EThing { A };\n"), "Thing.h:1: UENUM is not supported\n");
	EXPECT_EQ(Refuse("\nUINTERFACE()\nclass UThing;\n"), "Thing.h:2: UINTERFACE is not supported\n");
	EXPECT_EQ(Refuse("UDELEGATE()\n"), "Thing.h:1: UDELEGATE is not supported\n");
	EXPECT_EQ(Refuse("DECLARE_DYNAMIC_MULTICAST_DELEGATE(FThing);\n"),
		"Thing.h:1: DECLARE_DYNAMIC_MULTICAST_DELEGATE is not supported\n");
	EXPECT_EQ(RefuseMembers("\tGENERATED_UCLASS_BODY()"), "Thing.h:6: GENERATED_UCLASS_BODY is not supported\n");
	EXPECT_EQ(RefuseMembers("\tUFUNCTION()\n\tvoid A(UPARAM(ref) int32& B);"),
		"Thing.h:7: UPARAM within the parameters of A\n");
}

TEST(HeaderTool, RefusesTypesWithoutABody)
{
	EXPECT_EQ(Refuse("#include \"Thing.generated.h\"\nUCLASS()\nclass UThing : public UObject\n{\n};\n"),
		"Thing.h:3: UThing has no GENERATED_BODY()\n");
	EXPECT_EQ(Refuse("#include \"Thing.generated.h\"\nUSTRUCT()\nstruct FThing\n{\n\tint32 A;\n};\n"),
		"Thing.h:3: FThing has no GENERATED_BODY()\n");
	EXPECT_EQ(RefuseMembers("\tGENERATED_BODY()"), "Thing.h:6: second GENERATED_BODY() of UThing\n");
	EXPECT_EQ(
		Refuse(
			"#include \"Thing.generated.h\"\nUSTRUCT()\nstruct FThing\n{\n\tUPROPERTY()\n\tint32 A;\n\tGENERATED_BODY()\n};\n"),
		"Thing.h:5: UPROPERTY before GENERATED_BODY()\n");
	EXPECT_EQ(
		Refuse(
			"#include \"Thing.generated.h\"\nUSTRUCT() struct FA { GENERATED_BODY() }; USTRUCT() struct FB { GENERATED_BODY() };\n"),
		"Thing.h:2: two GENERATED_BODY() on one line\n");
}

TEST(HeaderTool, RefusesReflectedThingsOutsideOfReflectedTypes)
{
	EXPECT_EQ(Refuse("class UThing : public UObject\n{\n\tUPROPERTY()\n\tint32 A;\n};\n"),
		"Thing.h:3: UPROPERTY outside of a class with UCLASS or a structure with USTRUCT\n");
	EXPECT_EQ(Refuse("class UThing\n{\n\tGENERATED_BODY()\n};\n"),
		"Thing.h:3: GENERATED_BODY outside of a class with UCLASS or a structure with USTRUCT\n");
	EXPECT_EQ(Refuse("UFUNCTION()\nvoid A();\n"),
		"Thing.h:1: UFUNCTION outside of a class with UCLASS or a structure with USTRUCT\n");
	EXPECT_EQ(Refuse("namespace Space\n{\nUCLASS()\nclass UThing : public UObject {};\n}\n"),
		"Thing.h:3: UCLASS within a namespace or another type\n");
	EXPECT_EQ(RefuseMembers("\tUSTRUCT()\n\tstruct FInner {};"),
		"Thing.h:6: USTRUCT within another type or a function of UThing\n");
	EXPECT_EQ(RefuseMembers("\tstruct FInner\n\t{\n\t\tUPROPERTY()\n\t\tint32 A;\n\t};"),
		"Thing.h:8: UPROPERTY within another type or a function of UThing\n");
}

TEST(HeaderTool, RefusesHeadsThatItCannotRead)
{
	EXPECT_EQ(RefuseHead("UCLASS()\nstruct UThing : public UObject"),
		"Thing.h:3: expected 'class' after UCLASS but found 'struct'\n");
	EXPECT_EQ(RefuseHead("USTRUCT()\nclass FThing"), "Thing.h:3: expected 'struct' after USTRUCT but found 'class'\n");
	EXPECT_EQ(RefuseHead("UCLASS()\nclass FThing : public UObject"),
		"Thing.h:3: the name FThing must begin with U or A and a capital\n");
	EXPECT_EQ(RefuseHead("UCLASS()\nclass Unlucky : public UObject"),
		"Thing.h:3: the name Unlucky must begin with U or A and a capital\n");
	EXPECT_EQ(RefuseHead("USTRUCT()\nstruct Thing"), "Thing.h:3: the name Thing must begin with F and a capital\n");
	EXPECT_EQ(
		RefuseHead("UCLASS()\nclass UThing"), "Thing.h:3: UThing must derive from UObject or one of its classes\n");
	EXPECT_EQ(RefuseHead("UCLASS()\nclass UThing : UObject"), "Thing.h:3: the base of UThing must be public\n");
	EXPECT_EQ(RefuseHead("UCLASS()\nclass UThing : public UObject, IThing"),
		"Thing.h:3: expected 'public' before another base but found 'IThing'\n");
	EXPECT_EQ(RefuseHead("UCLASS()\nclass UThing : public TBase<int32>"),
		"Thing.h:3: expected '{' after the head of UThing but found '<'\n");
	EXPECT_EQ(
		RefuseHead("UCLASS()\nclass UThing;"), "Thing.h:3: UThing must derive from UObject or one of its classes\n");
	EXPECT_EQ(RefuseHead("UCLASS()\ntemplate <class T> class UThing : public UObject"),
		"Thing.h:3: expected 'class' after UCLASS but found 'template'\n");
}

TEST(HeaderTool, RefusesAMissingOrMisplacedGeneratedHeader)
{
	const std::string Class = "UCLASS()\nclass UThing : public UObject { GENERATED_BODY() };\n";
	EXPECT_EQ(Refuse(Class), "Thing.h:2: #include \"Thing.generated.h\" is missing\n");
	EXPECT_EQ(Refuse("#include \"Other.generated.h\"\n" + Class),
		"Thing.h:1: generated header of another file, expected \"Thing.generated.h\"\n");
	EXPECT_EQ(Refuse("#include \"Thing.generated.h\"\n#include \"Other.h\"\n" + Class),
		"Thing.h:2: #include after that of \"Thing.generated.h\", which must be the last one\n");
	EXPECT_EQ(Refuse(Class + "#include \"Thing.generated.h\"\n"),
		"Thing.h:3: #include \"Thing.generated.h\" after a reflected type\n");
	EXPECT_EQ(Refuse("// #include \"Thing.generated.h\"\n" + Class),
		"Thing.h:3: #include \"Thing.generated.h\" is missing\n");
}

TEST(HeaderTool, RefusesReflectedThingsWithinConditionals)
{
	EXPECT_EQ(Refuse("#if 1\nUCLASS()\nclass UThing : public UObject {};\n#endif\n"),
		"Thing.h:2: UCLASS within a preprocessor conditional\n");
	EXPECT_EQ(RefuseMembers("#ifdef A\n\tUPROPERTY()\n\tint32 B;\n#endif"),
		"Thing.h:7: UPROPERTY within a preprocessor conditional\n");
	EXPECT_EQ(RefuseMembers("#ifndef A\n#else\n\tUFUNCTION()\n\tvoid B();\n#endif"),
		"Thing.h:8: UFUNCTION within a preprocessor conditional\n");
	EXPECT_EQ(RefuseMembers("#if A\n#endif\n\tUPROPERTY()\n\tint32 B;"), "");
	EXPECT_EQ(Refuse("\n#if 1\n"), "Thing.h:2: preprocessor conditional is not closed\n");
	EXPECT_EQ(Refuse("#endif\n"), "Thing.h:1: #endif without #if\n");
}

TEST(HeaderTool, RefusesWhatIsNotClosed)
{
	EXPECT_EQ(Refuse("\n/* comment\n\n"), "Thing.h:2: comment is not closed\n");
	EXPECT_EQ(Refuse("const char* A = \"text;\n"), "Thing.h:1: string is not closed\n");
	EXPECT_EQ(Refuse("\n\nchar A = 'b;\n"), "Thing.h:3: character is not closed\n");
	EXPECT_EQ(Refuse("const char* A = R\"x(text)y\";\n"), "Thing.h:1: raw string is not closed\n");
	EXPECT_EQ(Refuse("const char* A = \"text\\\"\n"), "Thing.h:1: string is not closed\n");
	EXPECT_EQ(
		Refuse("#include \"Thing.generated.h\"\nUCLASS()\nclass UThing : public UObject\n{\n\tGENERATED_BODY()\n"),
		"Thing.h:3: UThing is not closed\n");
	EXPECT_EQ(Refuse("#include \"Thing.generated.h\"\nUCLASS(\n"),
		"Thing.h:3: expected a specifier but found the end of the file\n");
	EXPECT_EQ(RefuseMembers("\tvoid A() { /* } */ "), "Thing.h:3: UThing is not closed\n");
	EXPECT_EQ(Refuse("#include \"Thing.generated.h\"\nUSTRUCT()\nstruct FThing { GENERATED_BODY() }\n"),
		"Thing.h:4: expected ';' after FThing but found the end of the file\n");
}

TEST(HeaderTool, RefusesFunctionsThatAreNone)
{
	EXPECT_EQ(
		RefuseMembers("\tUFUNCTION()\n\tint32 A;"), "Thing.h:6: UFUNCTION must be followed by a function, found ';'\n");
	EXPECT_EQ(RefuseMembers("\tUFUNCTION()\n\tUThing();"), "Thing.h:7: function UThing has no result type\n");
	EXPECT_EQ(RefuseMembers("\tUFUNCTION()\n\tstatic A();"), "Thing.h:7: function A has no result type\n");
	EXPECT_EQ(RefuseMembers("\tUFUNCTION()\n\tbool operator==(int32 A);"),
		"Thing.h:6: UFUNCTION must be followed by a function, found 'operator'\n");
	EXPECT_EQ(RefuseMembers("\tUFUNCTION()\n\tvoid A("), "Thing.h:7: the parameters of A are not closed\n");
	EXPECT_EQ(
		RefuseMembers("\tUFUNCTION()\n\tvoid A() const"), "Thing.h:8: expected ';' after function A but found '}'\n");
	EXPECT_EQ(RefuseMembers("\tUFUNCTION()\n\tUPROPERTY()\n\tint32 A;"),
		"Thing.h:7: UFUNCTION must be followed by a declaration, found 'UPROPERTY'\n");
	EXPECT_EQ(
		Refuse(
			"#include \"Thing.generated.h\"\nUSTRUCT()\nstruct FThing\n{\n\tGENERATED_BODY()\n\tUFUNCTION()\n\tvoid A();\n};\n"),
		"Thing.h:6: UFUNCTION in a structure\n");
}

TEST(HeaderTool, CountsLinesThroughCommentsStringsAndContinuations)
{
	const std::string Prefix = "/* a\nb */ // c \\\nd\nauto A = R\"(\n\n)\";\n#define B \\\n\tC /* D\n*/ E\n";
	EXPECT_EQ(Refuse(Prefix + "UENUM()\n"), "Thing.h:10: UENUM is not supported\n");
	EXPECT_EQ(Refuse("\r\n// a\r\nUENUM()\r\n"), "Thing.h:3: UENUM is not supported\n");
	EXPECT_EQ(Refuse("\xEF\xBB\xBFUENUM()\n"), "Thing.h:1: UENUM is not supported\n");
	EXPECT_EQ(
		Refuse("int A = 1'0'0; char B = '\"'; char C = '\\'';\nUENUM()\n"), "Thing.h:2: UENUM is not supported\n");
}

TEST(HeaderTool, ReportsEachFaultyHeaderAndWritesNothing)
{
	FToolRun Tool;
	Tool.Write(
		"Good.h", "#include \"Good.generated.h\"\nUCLASS()\nclass UGood : public UObject { GENERATED_BODY() };\n");
	Tool.Write("Bad.h", "UENUM()\n");
	Tool.Write("Worse.h", "\n/*\n");
	EXPECT_FALSE(Tool.Run({"Good.h", "Bad.h", "Worse.h"}));
	EXPECT_EQ(Tool.GetMessages(), "Bad.h:1: UENUM is not supported\nWorse.h:2: comment is not closed\n");
	EXPECT_FALSE(std::filesystem::exists(Tool.GetOutput("Good.generated.h")));
}

TEST(HeaderTool, RefusesNamesThatCollideWithinAModule)
{
	FToolRun Tool;
	Tool.Write("A.h", "#include \"A.generated.h\"\nUCLASS()\nclass UThing : public UObject { GENERATED_BODY() };\n");
	Tool.Write("B.h", "#include \"B.generated.h\"\n\nUCLASS()\nclass AThing : public AActor { GENERATED_BODY() };\n");
	EXPECT_FALSE(Tool.Run({"A.h", "B.h"}));
	EXPECT_EQ(Tool.GetMessages().substr(0, 32), "B.h:4: AThing has the name of UT");
	std::filesystem::create_directories(Tool.GetFolder() / "Module/Public/Sub");
	Tool.Write("Sub/A.h", "#include \"A.generated.h\"\n");
	EXPECT_FALSE(Tool.Run({"A.h", "Sub/A.h"}));
	EXPECT_EQ(Tool.GetMessages(), "Sub/A.h:1: a header of the same name is A.h\n");
}

TEST(HeaderTool, RefusesHeadersAndFoldersThatItCannotUse)
{
	FToolRun Tool;
	EXPECT_FALSE(Tool.Run({"Missing.h"}));
	EXPECT_EQ(Tool.GetMessages(), "Missing.h:1: can't be read\n");
	EXPECT_FALSE(Tool.RunWith("--module Probe --root / --output"));
	EXPECT_EQ(Tool.GetMessages().substr(0, 6), "usage:");
	EXPECT_FALSE(Tool.RunWith("--module Probe --root /"));
	Tool.Write("File", "");
	EXPECT_FALSE(
		Tool.RunWith("--module Probe --root / --output " + (Tool.GetFolder() / "Module/Public/File").string()));
	EXPECT_EQ(Tool.GetExitStatus(), 1);
	EXPECT_NE(Tool.GetMessages(), "");
}
