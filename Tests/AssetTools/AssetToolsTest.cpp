// Copyright Corvane. MIT License.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <filesystem>
#include <set>
#include <string>

#include "AssetRegistry/IAssetRegistry.h"
#include "AssetToolsModule.h"
#include "Engine/TextureRenderTarget2D.h"
#include "Modules/ModuleManager.h"
#include "UObject/Package.h"
#include "UObject/WeakObjectPtrTemplates.h"

namespace
{
	const std::u16string Folder = u"/Game/CineStream/";

	/** The modules are built into the folder of this program. */
	void FindModulesBesideTheProgram()
	{
		const std::string Directory = std::filesystem::read_symlink("/proc/self/exe").parent_path().string();
		if (!FModuleManager::Get().ModuleExists(TEXT("AssetTools")))
		{
			FModuleManager::Get().AddBinariesDirectory(UTF8_TO_TCHAR(Directory.c_str()), false);
		}
	}

	/** The asset tools with a registry and no assets. */
	class FAssetFixture
	{
	public:
		FAssetFixture()
		{
			FindModulesBesideTheProgram();
			FModuleManager::Get().LoadModuleChecked(FName("AssetRegistry"));
			Tools = &FModuleManager::LoadModuleChecked<FAssetToolsModule>(FName("AssetTools")).Get();
		}
		~FAssetFixture()
		{
			FModuleManager::Get().UnloadModule(FName("AssetRegistry"));
			for (UObject* Asset : Made)
			{
				Asset->ClearFlags(RF_Standalone);
			}
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		}
		FAssetFixture(const FAssetFixture&) = delete;
		FAssetFixture& operator=(const FAssetFixture&) = delete;

		/** The unique package name for a stream name. */
		FString Unique(const std::u16string& Name, FString* OutAssetName = nullptr)
		{
			FString PackageName;
			FString AssetName;
			Tools->CreateUniqueAssetName(FString((Folder + Name).c_str()), FString(), PackageName, AssetName);
			if (OutAssetName)
			{
				*OutAssetName = AssetName;
			}
			return PackageName;
		}
		UObject* Create(const std::u16string& Name, const TCHAR* Path = TEXT("/Game/CineStream/"),
			UClass* Class = UTextureRenderTarget2D::StaticClass())
		{
			UObject* Asset = Tools->CreateAsset(FString(Name.c_str()), Path, Class, nullptr);
			if (Asset)
			{
				Made.Add(Asset);
			}
			return Asset;
		}
		/** As the wizard does: a unique name first, then an asset of that name in the folder. */
		UObject* CreateStream(const std::u16string& Name)
		{
			FString AssetName;
			Unique(Name, &AssetName);
			return Create(*AssetName);
		}

		IAssetTools* Tools;

	private:
		TArray<UObject*> Made;
	};

	class IAssetToolsTest : public ::testing::Test, protected FAssetFixture
	{};

	std::u16string ToStd(const FString& Text)
	{
		return std::u16string(*Text, static_cast<std::size_t>(Text.Len()));
	}

	std::u16string PathOf(const UObject* Object)
	{
		return Object ? ToStd(Object->GetPathName()) : u"null";
	}
}

TEST_F(IAssetToolsTest, KeepsAFreeNameAsItIs)
{
	FString AssetName;
	EXPECT_EQ(ToStd(Unique(u"Main", &AssetName)), u"/Game/CineStream/Main");
	EXPECT_EQ(ToStd(AssetName), u"Main");
}

TEST_F(IAssetToolsTest, AppendsTheSuffixBeforeItLooks)
{
	Create(u"Main_Inst");
	FString PackageName;
	FString AssetName;
	Tools->CreateUniqueAssetName(TEXT("/Game/CineStream/Main"), TEXT("_Inst"), PackageName, AssetName);
	EXPECT_EQ(ToStd(PackageName), u"/Game/CineStream/Main_Inst1");
	EXPECT_EQ(ToStd(AssetName), u"Main_Inst1");
}

TEST_F(IAssetToolsTest, AppendsTheNextFreeNumber)
{
	Create(u"Main");
	EXPECT_EQ(ToStd(Unique(u"Main")), u"/Game/CineStream/Main1");
	Create(u"Main1");
	EXPECT_EQ(ToStd(Unique(u"Main")), u"/Game/CineStream/Main2");
}

TEST_F(IAssetToolsTest, CountsOnFromATrailingNumber)
{
	Create(u"Cam1");
	EXPECT_EQ(ToStd(Unique(u"Cam1")), u"/Game/CineStream/Cam2");
	Create(u"Cam9");
	EXPECT_EQ(ToStd(Unique(u"Cam9")), u"/Game/CineStream/Cam10");
	Create(u"Cam_7");
	EXPECT_EQ(ToStd(Unique(u"Cam_7")), u"/Game/CineStream/Cam_8");
	Create(u"42");
	EXPECT_EQ(ToStd(Unique(u"42")), u"/Game/CineStream/43");
}

TEST_F(IAssetToolsTest, LosesTheZerosBeforeANumber)
{
	Create(u"Cam01");
	EXPECT_EQ(ToStd(Unique(u"Cam01")), u"/Game/CineStream/Cam2");
}

TEST_F(IAssetToolsTest, TakesANumberOfMoreThanNineDigitsAsPartOfTheName)
{
	Create(u"Cam999999999");
	EXPECT_EQ(ToStd(Unique(u"Cam999999999")), u"/Game/CineStream/Cam1000000000");
	Create(u"Cam1000000000");
	EXPECT_EQ(ToStd(Unique(u"Cam1000000000")), u"/Game/CineStream/Cam10000000001");
}

TEST_F(IAssetToolsTest, TakesANameInOtherLetterCaseAsTaken)
{
	Create(u"Main");
	EXPECT_EQ(ToStd(Unique(u"mAIN")), u"/Game/CineStream/mAIN1");
	EXPECT_EQ(Create(u"MAIN"), nullptr);
}

TEST_F(IAssetToolsTest, ReplacesEveryCharacterThatNoNameMayHave)
{
	const std::u16string Forbidden = u" \"',\\:*?<>|.&!~@#(){}[]=;^%$`\t\n\r\x01\x1f\x7f\x80\x9f";
	for (const char16_t Char : Forbidden)
	{
		EXPECT_EQ(ToStd(Unique(std::u16string(u"a") + Char + u"b")), u"/Game/CineStream/a_b") << static_cast<int>(Char);
	}
}

TEST_F(IAssetToolsTest, KeepsAllOtherCharacters)
{
	// Letters beyond ASCII, an emoji and a lone surrogate; a no-break space is no blank.
	for (const std::u16string Name : {u"Zürich", u"カメラ", u"\U0001F3A5",
			 u"a\xd83d"
			 u"b",
			 u"a\xdf00", u"a\u00a0b", u"A-b_c+"})
	{
		EXPECT_EQ(ToStd(Unique(Name)), Folder + Name);
		EXPECT_EQ(PathOf(CreateStream(Name)), Folder + Name + u"." + Name);
	}
}

TEST_F(IAssetToolsTest, MakesAnAssetInAPackageOfItsOwn)
{
	UObject* Asset = Create(u"Main");
	ASSERT_EQ(PathOf(Asset), u"/Game/CineStream/Main.Main");
	EXPECT_TRUE(Asset->IsA<UTextureRenderTarget2D>());
	EXPECT_TRUE(Asset->GetOutermost()->IsDirty());
	EXPECT_EQ(Asset->GetFlags() & (RF_Public | RF_Standalone | RF_Transactional),
		RF_Public | RF_Standalone | RF_Transactional);
}

TEST_F(IAssetToolsTest, KeepsTheAssetFromTheCollector)
{
	const TWeakObjectPtr<UObject> Asset = Create(u"Main");
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_TRUE(Asset.IsValid());
}

TEST_F(IAssetToolsTest, TellsTheRegistryOnce)
{
	UObject* Asset = Create(u"Main");
	IAssetRegistry::Get()->AssetCreated(Asset);
	TArray<FAssetData> Assets;
	IAssetRegistry::Get()->GetAllAssets(Assets);
	ASSERT_EQ(Assets.Num(), 1);
	EXPECT_EQ(Assets[0].GetAsset(), Asset);
}

TEST_F(IAssetToolsTest, MakesAnAssetWithoutRegistryToo)
{
	FModuleManager::Get().UnloadModule(FName("AssetRegistry"));
	EXPECT_NE(Create(u"Main"), nullptr);
}

TEST_F(IAssetToolsTest, TakesAFolderWithOrWithoutSlash)
{
	EXPECT_EQ(PathOf(Create(u"A", TEXT("/Game/Folder"))), u"/Game/Folder/A.A");
	EXPECT_EQ(PathOf(Create(u"B", TEXT("/Game/Folder/"))), u"/Game/Folder/B.B");
}

TEST_F(IAssetToolsTest, NamesAnAssetLikeTheLastPartOfItsPath)
{
	EXPECT_EQ(PathOf(Create(u"a/b")), u"/Game/CineStream/a/b.b");
}

TEST_F(IAssetToolsTest, ReplacesForbiddenCharactersOfAnAssetToo)
{
	EXPECT_EQ(PathOf(Create(u"Cam 1")), u"/Game/CineStream/Cam_1.Cam_1");
}

TEST_F(IAssetToolsTest, RefusesATakenPath)
{
	EXPECT_NE(Create(u"Main"), nullptr);
	EXPECT_EQ(Create(u"Main"), nullptr);
}

TEST_F(IAssetToolsTest, RefusesEmptyParts)
{
	EXPECT_EQ(Create(u""), nullptr);
	EXPECT_EQ(Create(u"a/"), nullptr);
	EXPECT_EQ(Create(u"/a"), nullptr);
	EXPECT_EQ(Create(u"a//b"), nullptr);
	EXPECT_EQ(Create(u"a", TEXT("/Game//")), nullptr);
}

TEST_F(IAssetToolsTest, RefusesAPathThatDoesNotBeginAtTheRoot)
{
	EXPECT_EQ(Create(u"a", TEXT("Game/CineStream")), nullptr);
}

TEST_F(IAssetToolsTest, RefusesNoClassAndAnAbstractOne)
{
	EXPECT_EQ(Create(u"a", TEXT("/Game/"), nullptr), nullptr);
	EXPECT_EQ(Create(u"a", TEXT("/Game/"), UTexture::StaticClass()), nullptr);
	EXPECT_EQ(FindPackage(nullptr, TEXT("/Game/a")), nullptr);
}

TEST_F(IAssetToolsTest, TakesNamesUpToTheLimit)
{
	const std::u16string Longest(1023 - Folder.size(), u'x');
	EXPECT_EQ(PathOf(CreateStream(Longest)), Folder + Longest + u"." + Longest);
	// Taken, and with a number it is too long for any asset.
	EXPECT_EQ(CreateStream(Longest), nullptr);
}

TEST_F(IAssetToolsTest, RefusesLongerNames)
{
	const std::u16string TooLong(1024 - Folder.size(), u'x');
	EXPECT_EQ(ToStd(Unique(TooLong)), Folder + TooLong);
	EXPECT_EQ(CreateStream(TooLong), nullptr);
	EXPECT_EQ(CreateStream(std::u16string(100000, u'x')), nullptr);
}

TEST_F(IAssetToolsTest, FindsNoFreeNameForTheSecondStreamOfANameWithSlash)
{
	// The name is found free in the folder "a"; the asset is made one folder higher, where the first one is.
	EXPECT_EQ(PathOf(CreateStream(u"a/b")), u"/Game/CineStream/b.b");
	EXPECT_EQ(CreateStream(u"a/b"), nullptr);
}

TEST_F(IAssetToolsTest, GivesAnAssetCalledNoneTheNameOfItsClass)
{
	EXPECT_EQ(PathOf(CreateStream(u"None")), u"/Game/CineStream/None.TextureRenderTarget2D_0");
	EXPECT_EQ(PathOf(CreateStream(u"None")), u"/Game/CineStream/None1.None1");
}

namespace
{
	/** Few letters, so that names meet. */
	rc::Gen<std::u16string> AnyName()
	{
		return rc::gen::container<std::u16string>(rc::gen::element<char16_t>(
			u'a', u'A', u'b', u'0', u'1', u'9', u'_', u' ', u'.', u'\x85', u'ü', u'\xd83d', u'\xdf00'));
	}

	bool IsForbidden(char16_t Char)
	{
		return Char < 0x20 || (Char >= 0x7f && Char <= 0x9f) ||
			std::u16string(u" \"',\\:*?<>|.&!~@#(){}[]=;^%$`").find(Char) != std::u16string::npos;
	}

	std::u16string Fold(std::u16string Text)
	{
		for (char16_t& Char : Text)
		{
			Char = Char >= u'A' && Char <= u'Z' ? static_cast<char16_t>(Char + 32) : Char;
		}
		return Text;
	}

	/** The numbering rule once more, in the plainest way: the names it may give, one after the other. */
	std::u16string ModelUnique(std::u16string Name, const std::set<std::u16string>& Taken)
	{
		for (char16_t& Char : Name)
		{
			Char = IsForbidden(Char) ? u'_' : Char;
		}
		const std::size_t Letters = Name.find_last_not_of(u"0123456789") + 1;
		const bool bCounts = Name.size() > Letters && Name.size() - Letters <= 9;
		const std::u16string Stem = bCounts ? Name.substr(0, Letters) : Name;
		long Number =
			bCounts ? std::stol(std::string(Name.begin() + static_cast<std::ptrdiff_t>(Letters), Name.end())) : 0;
		while (Taken.count(Fold(Name)))
		{
			const std::string Digits = std::to_string(++Number);
			Name = Stem + std::u16string(Digits.begin(), Digits.end());
		}
		return Name;
	}
}

RC_GTEST_PROP(IAssetTools, GivesTheNamesOfThePlainModel, ())
{
	FAssetFixture Fixture;
	std::set<std::u16string> Taken;
	for (const std::u16string& Name : *rc::gen::container<std::vector<std::u16string>>(rc::gen::nonEmpty(AnyName())))
	{
		FString AssetName;
		Fixture.Unique(Name, &AssetName);
		RC_ASSERT(ToStd(AssetName) == ModelUnique(Name, Taken));
		RC_ASSERT(Fixture.Create(ToStd(AssetName)) != nullptr);
		Taken.insert(Fold(ToStd(AssetName)));
	}
}

RC_GTEST_PROP(IAssetTools, GivesFreeAndPossibleNamesForAnyText, (const std::vector<std::u16string>& Existing))
{
	FAssetFixture Fixture;
	for (const std::u16string& Name : Existing)
	{
		Fixture.CreateStream(Name);
	}
	const std::u16string Name = *rc::gen::arbitrary<std::u16string>();
	const std::u16string Package = ToStd(Fixture.Unique(Name));
	RC_ASSERT(std::none_of(Package.begin(), Package.end(), &IsForbidden));
	RC_ASSERT(FindPackage(nullptr, FString(Package.c_str()).operator*()) == nullptr);
}

RC_GTEST_PROP(IAssetTools, LeavesAFreeCleanNameAlone, ())
{
	FAssetFixture Fixture;
	const std::u16string Name = *AnyName();
	const std::u16string Once = ToStd(Fixture.Unique(Name)).substr(Folder.size());
	RC_ASSERT(ToStd(Fixture.Unique(Once)) == Folder + Once);
}
