// Copyright Corvane. MIT License.
#include "WizardFixture.h"

#include "UserInput.h"

#include "AssetRegistry/AssetData.h"
#include "AssetRegistry/IAssetRegistry.h"
#include "Kismet/GameplayStatics.h"
#include "UObject/UnrealType.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SEditableTextBox.h"

namespace
{
	/** The manager's array of entries, reached as a details panel would. */
	struct FSenderArray
	{
		explicit FSenderArray(AActor* Manager)
			: Property(CastField<FArrayProperty>(Manager->GetClass()->FindPropertyByName(TEXT("SpoutSenders")))),
			  Helper(Property, Property->ContainerPtrToValuePtr<void>(Manager)),
			  Entry(CastField<FStructProperty>(Property->Inner)->Struct)
		{}
		FString& GetString(int32 Index, const TCHAR* Field)
		{
			return *Entry->FindPropertyByName(Field)->ContainerPtrToValuePtr<FString>(Helper.GetRawPtr(Index));
		}

		FArrayProperty* Property;
		FScriptArrayHelper Helper;
		UScriptStruct* Entry;
	};
}

void FWizardFixture::OpenWizard()
{
	std::string Error;
	Wizard = FWizardPages::Open(Error);
	EXPECT_TRUE(Wizard.IsValid()) << Error;
	Pages = std::make_unique<FWizardPages>(Wizard.ToSharedRef());
}

std::string FWizardFixture::Create(const FString& Name)
{
	if (!Pages)
	{
		OpenWizard();
	}
	EXPECT_TRUE(Pages->EnterName(Name));
	EXPECT_TRUE(Pages->PressButton());
	return Pages->GetMessage();
}

void FWizardFixture::PasteName(const FString& Name)
{
	const TSharedRef<SEditableTextBox> Box = FWidgetFinder(Wizard.ToSharedRef()).GetEditBoxes()[0];
	ASSERT_TRUE(FUserInput::Focus(Box));
	Box->SelectAllText();
	FUserInput::Paste(Name);
}

void FWizardFixture::Click(const char* Caption)
{
	const TSharedPtr<SButton> Button = FWidgetFinder(Wizard.ToSharedRef()).FindButton(Caption);
	ASSERT_TRUE(Button.IsValid()) << Caption;
	ASSERT_TRUE(FUserInput::Click(Button.ToSharedRef()));
}

bool FWizardFixture::HasButton(const char* Caption) const
{
	return FWidgetFinder(Wizard.ToSharedRef()).FindButton(Caption).IsValid();
}

std::string FWizardFixture::GetWarning() const
{
	return Pages->GetWarning().value_or("");
}

UClass* FWizardFixture::FindActorClass(const TCHAR* Name)
{
	return FindObject<UClass>(ANY_PACKAGE, Name);
}

TArray<AActor*> FWizardFixture::GetActors(UWorld* World, const TCHAR* ClassName)
{
	TArray<AActor*> Actors;
	UGameplayStatics::GetAllActorsOfClass(World, FindActorClass(ClassName), Actors);
	return Actors;
}

std::vector<std::string> FWizardFixture::GetSenders(AActor* Manager)
{
	FSenderArray Senders(Manager);
	std::vector<std::string> Result;
	for (int32 Index = 0; Index < Senders.Helper.Num(); ++Index)
	{
		const FString Both = Senders.GetString(Index, TEXT("SpoutSenderName")) + TEXT("|") +
			Senders.GetString(Index, TEXT("StandaloneSenderName"));
		Result.push_back(TCHAR_TO_UTF8(Both));
	}
	return Result;
}

AActor* FWizardFixture::PlaceManager(UWorld* World, const TCHAR* SenderName, const TCHAR* StandaloneName)
{
	AActor* Manager = World->SpawnActor(FindActorClass(TEXT("ZAVSpoutSenderManager")), nullptr, nullptr);
	FSenderArray Senders(Manager);
	const int32 Index = Senders.Helper.AddValue();
	Senders.GetString(Index, TEXT("SpoutSenderName")) = SenderName;
	Senders.GetString(Index, TEXT("StandaloneSenderName")) = StandaloneName;
	return Manager;
}

void FWizardFixture::ExpectNoActors() const
{
	EXPECT_EQ(GetActors(World(0), TEXT("ZAVCineCamCapture")).Num(), 0);
	EXPECT_EQ(GetActors(World(0), TEXT("ZAVSpoutSenderManager")).Num(), 0);
}

std::vector<std::string> FWizardFixture::GetAssetPackages()
{
	TArray<FAssetData> Assets;
	IAssetRegistry::Get()->GetAllAssets(Assets);
	std::vector<std::string> Packages;
	for (const FAssetData& Asset : Assets)
	{
		Packages.push_back(TCHAR_TO_UTF8(Asset.PackageName.ToString()));
	}
	return Packages;
}
