// Copyright Corvane. MIT License.
#include "Generator.h"

#include <set>

namespace
{
	const char* const Notice = "// Copyright Corvane. MIT License.\n// Written by HeaderTool: changes are lost.\n";
	const char* const Exported = "__attribute__((visibility(\"default\"))) ";

	std::string GetStatics(const FReflectedType& Type)
	{
		return (Type.bIsClass ? "Z_Construct_UClass_" : "Z_Construct_UScriptStruct_") + Type.Name + "_Statics";
	}

	/** The function by which other sources reach a class of which they know the name only. */
	std::string GetClassFunction(const std::string& Class)
	{
		return "Z_Construct_UClass_" + Class + "_NoRegister";
	}

	std::string GetStructFunction(const std::string& Struct)
	{
		return "Z_Construct_UScriptStruct_" + Struct;
	}

	std::string Join(const std::vector<std::string>& Words, const std::string& Empty)
	{
		std::string Result;
		for (const std::string& Word : Words)
		{
			Result += (Result.empty() ? "" : " | ") + Word;
		}
		return Result.empty() ? Empty : Result;
	}

	std::string MakeMetaData(const FSpecifiers& Specifiers)
	{
		std::string Result;
		for (const FMetaData& Entry : Specifiers.MetaData)
		{
			Result += (Result.empty() ? "" : ", ") + ("{\"" + Entry.Key + "\", TEXT(\"" + Entry.Value + "\")}");
		}
		return "{" + Result + "}";
	}

	std::string MakeProperties(const FReflectedType& Type)
	{
		if (Type.Properties.empty())
		{
			return "\tstatic void AddProperties(UStruct&) {}\n";
		}
		std::string Result = "\tstatic void AddProperties(UStruct& Struct)\n\t{\n";
		for (const FReflectedProperty& Property : Type.Properties)
		{
			const std::string Member = Type.Name + "::" + Property.Name;
			const std::string ClassFunction =
				Property.PointerClass.empty() ? "nullptr" : "&" + GetClassFunction(Property.PointerClass);
			Result += "\t\tUE4CodeGen_Private::AddProperty<decltype(" + Member + ")>(Struct,\n" + "\t\t\t{\"" +
				Property.Name + "\", STRUCT_OFFSET(" + Type.Name + ", " + Property.Name + "), " +
				Join(Property.Specifiers.Flags, "CPF_None") + ", " + ClassFunction + "},\n" + "\t\t\t" +
				MakeMetaData(Property.Specifiers) + ");\n";
		}
		return Result + "\t}\n";
	}
}

std::string FGenerator::MakeHeader(const FHeader& Header) const
{
	const std::string Guard = Module + "_" + Header.Stem + "_generated_h";
	std::string Result = Notice;
	Result += "#include \"UObject/ObjectMacros.h\"\n\n#ifdef " + Guard + "\n#error \"" + Header.Stem +
		".generated.h is included already: is '#pragma once' missing in " + Header.Stem + ".h?\"\n#endif\n#define " +
		Guard + "\n\nclass UScriptStruct;\n";
	for (const FReflectedType& Type : Header.Types)
	{
		Result += MakeBody(Header, Type);
	}
	return Result + "\n#undef CURRENT_FILE_ID\n#define CURRENT_FILE_ID " + Header.FileId + "\n";
}

std::string FGenerator::MakeBody(const FHeader& Header, const FReflectedType& Type) const
{
	std::string Result = "\nstruct " + GetStatics(Type) + ";\n#define " + Header.FileId + "_" +
		std::to_string(Type.BodyLine) + "_GENERATED_BODY \\\n";
	const std::string Friend = "\tfriend struct ::" + GetStatics(Type) + "; \\\n";
	if (!Type.bIsClass)
	{
		// Other modules that hold the structure in a property need its description, exported or not.
		return Result + Friend + "\tstatic " + Exported + "UScriptStruct* StaticStruct();\n";
	}
	return Result + "private: \\\n" + Friend + "\tDECLARE_CLASS(" + Type.Name + ", " + Type.Super +
		", COMPILED_IN_FLAGS(" + Join(Type.Specifiers.Flags, "CLASS_None") + "), CASTCLASS_None, TEXT(\"/Script/" +
		Module + "\"), " + (Type.Api.empty() ? "NO_API" : Type.Api) + ") \\\nprivate:\n";
}

std::string FGenerator::MakeSource(const FHeader& Header) const
{
	std::string Result = Notice;
	Result += "#include \"UObject/GeneratedCppIncludes.h\"\n#include \"" + Header.IncludePath +
		"\"\n\n// Objects have virtual functions; every compiler in use lays them out with fixed offsets all the same.\n" +
		"#pragma GCC diagnostic ignored \"-Winvalid-offsetof\"\n\n";
	std::set<std::string> Classes;
	for (const FReflectedType& Type : Header.Types)
	{
		if (Type.bIsClass)
		{
			Classes.insert(Type.Name);
		}
		for (const FReflectedProperty& Property : Type.Properties)
		{
			if (!Property.PointerClass.empty())
			{
				Classes.insert(Property.PointerClass);
			}
		}
	}
	for (const std::string& Class : Classes)
	{
		Result += Exported + ("UClass* " + GetClassFunction(Class)) + "();\n";
	}
	for (const FReflectedType& Type : Header.Types)
	{
		Result += "\n" + (Type.bIsClass ? MakeClass(Type) : MakeStruct(Type));
	}
	return Result;
}

std::string FGenerator::MakeClass(const FReflectedType& Type) const
{
	const std::string Statics = GetStatics(Type);
	return "struct " + Statics + "\n{\n\tstatic void Construct(const FObjectInitializer& Initializer)\n\t{\n" +
		"\t\tnew (EC_InternalUseOnlyConstructor, Initializer.GetObj()) " + Type.Name + "();\n\t}\n" +
		MakeProperties(Type) + "\tstatic UClass* Singleton;\n};\nUClass* " + Statics + "::Singleton = nullptr;\n\n" +
		"UClass* " + Type.Name + "::GetPrivateStaticClass()\n{\n\tif (" + Statics + "::Singleton)\n\t{\n\t\treturn " +
		Statics + "::Singleton;\n\t}\n\treturn UE4CodeGen_Private::ConstructUClass(" + Statics + "::Singleton,\n" +
		"\t\t{\"" + Type.Name.substr(1) + "\", StaticPackage(), sizeof(" + Type.Name + "), alignof(" + Type.Name +
		"), static_cast<EClassFlags>(StaticClassFlags),\n\t\t\t&Super::StaticClass, &" + Statics + "::Construct, &" +
		Type.Name + "::AddReferencedObjects, &" + Statics + "::AddProperties},\n\t\t" + MakeMetaData(Type.Specifiers) +
		");\n}\n\nUClass* " + GetClassFunction(Type.Name) + "()\n{\n\treturn " + Type.Name + "::StaticClass();\n}\n";
}

std::string FGenerator::MakeStruct(const FReflectedType& Type) const
{
	const std::string Statics = GetStatics(Type);
	const std::string Function = GetStructFunction(Type.Name);
	return "struct " + Statics + "\n{\n" + MakeProperties(Type) +
		"\tstatic UScriptStruct* Singleton;\n};\nUScriptStruct* " + Statics + "::Singleton = nullptr;\n\n" +
		"UScriptStruct* " + Type.Name + "::StaticStruct()\n{\n\tif (" + Statics + "::Singleton)\n\t{\n\t\treturn " +
		Statics + "::Singleton;\n\t}\n" + "\treturn UE4CodeGen_Private::ConstructUScriptStruct(" + Statics +
		"::Singleton,\n" + "\t\t{\"" + Type.Name.substr(1) + "\", TEXT(\"/Script/" + Module + "\"), sizeof(" +
		Type.Name + "), alignof(" + Type.Name + "), " +
		(Type.Super.empty() ? "nullptr" : "&TBaseStructure<" + Type.Super + ">::Get") + ", &" + Statics +
		"::AddProperties},\n\t\tUE4CodeGen_Private::MakeStructOps<" + Type.Name + ">(), " +
		MakeMetaData(Type.Specifiers) + ");\n}\n\n" + Exported + "UScriptStruct* " + Function + "();\nUScriptStruct* " +
		Function + "()\n{\n\treturn " + Type.Name + "::StaticStruct();\n}\n";
}

std::string FGenerator::MakeInit(const std::vector<FHeader>& Headers) const
{
	std::string Declarations;
	std::string Classes;
	std::string Structs;
	for (const FHeader& Header : Headers)
	{
		for (const FReflectedType& Type : Header.Types)
		{
			const std::string Function = Type.bIsClass ? GetClassFunction(Type.Name) : GetStructFunction(Type.Name);
			std::string& List = Type.bIsClass ? Classes : Structs;
			Declarations += Exported + std::string(Type.bIsClass ? "UClass* " : "UScriptStruct* ") + Function + "();\n";
			List += (List.empty() ? "&" : ", &") + Function;
		}
	}
	const std::string Function = std::string(Exported) + "void RegisterReflection_" + Module + "()";
	return std::string(Notice) + "#include \"UObject/GeneratedCppIncludes.h\"\n\n" + Declarations + "\nextern \"C\" " +
		Function + ";\nextern \"C\" " + Function + "\n{\n\tUE4CodeGen_Private::RegisterModule({" + Classes + "}, {" +
		Structs + "});\n}\n";
}
