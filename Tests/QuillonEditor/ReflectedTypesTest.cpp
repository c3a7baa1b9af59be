// Copyright Corvane. MIT License.
#include "WizardFixture.h"

#include "UObject/UnrealType.h"

// How the reference modules' classes present themselves to details panels and to the Place Actors panel.

class FReflectedTypes : public FWizardFixture
{
protected:
	static const FProperty* Find(const TCHAR* ClassName, const TCHAR* PropertyName)
	{
		const FProperty* Property = FindActorClass(ClassName)->FindPropertyByName(PropertyName);
		EXPECT_NE(Property, nullptr) << TCHAR_TO_UTF8(PropertyName);
		return Property;
	}
	static std::string GetMetaData(const FProperty* Property, const TCHAR* Key)
	{
		return TCHAR_TO_UTF8(Property->GetMetaData(Key));
	}
	static std::string GetDisplayName(const TCHAR* ClassName)
	{
		return TCHAR_TO_UTF8(FindActorClass(ClassName)->GetMetaData(TEXT("DisplayName")));
	}
};

TEST_F(FReflectedTypes, ShowReceiversAndSendersInOneEditableCategory)
{
	for (const FProperty* Property : {Find(TEXT("ZAVSpoutReceiverManager"), TEXT("SpoutReceivers")),
			 Find(TEXT("ZAVSpoutSenderManager"), TEXT("SpoutSenders"))})
	{
		EXPECT_EQ(GetMetaData(Property, TEXT("Category")), "Corvane Spout");
		EXPECT_TRUE(Property->HasAnyPropertyFlags(CPF_Edit));
		EXPECT_FALSE(Property->HasAnyPropertyFlags(CPF_EditConst));
	}
}

TEST_F(FReflectedTypes, ShowTheCaptureComponentAsAnInstancedSubobjectThatCannotBeReplaced)
{
	const FProperty* Property = Find(TEXT("ZAVCineCamCapture"), TEXT("CaptureComponent"));
	EXPECT_TRUE(Property->HasAnyPropertyFlags(CPF_Edit));
	EXPECT_TRUE(Property->HasAnyPropertyFlags(CPF_EditConst));
	EXPECT_TRUE(Property->HasAnyPropertyFlags(CPF_InstancedReference));
}

TEST_F(FReflectedTypes, HaveDisplayNamesForTheActors)
{
	EXPECT_EQ(GetDisplayName(TEXT("ZAVCineCamCapture")), "ZAV Cine Cam Capture");
	EXPECT_EQ(GetDisplayName(TEXT("ZAVSpoutSenderManager")), "ZAV Spout Sender Manager");
	EXPECT_EQ(GetDisplayName(TEXT("ZAVSpoutReceiverManager")), "ZAV Spout Receiver Manager");
}

TEST_F(FReflectedTypes, DeclareTheSenderEntrysFieldsInTheirOrder)
{
	const auto* Array = CastField<FArrayProperty>(Find(TEXT("ZAVSpoutSenderManager"), TEXT("SpoutSenders")));
	std::vector<std::string> Names;
	for (TFieldIterator<FProperty> It(CastField<FStructProperty>(Array->Inner)->Struct); It; ++It)
	{
		Names.push_back(TCHAR_TO_UTF8(It->GetName()));
	}
	EXPECT_EQ(Names, (std::vector<std::string>{"bActive", "SpoutSenderName", "StandaloneSenderName", "RenderTarget"}));
}

TEST_F(FReflectedTypes, DeclareTheSavedStatesFieldsInTheirOrder)
{
	std::vector<std::string> Names;
	for (TFieldIterator<FProperty> It(FindActorClass(TEXT("ZAVSaveGame"))); It; ++It)
	{
		Names.push_back(TCHAR_TO_UTF8(It->GetName()));
	}
	EXPECT_EQ(Names, (std::vector<std::string>{"UserIndex", "SaveSlotName", "bSkipVersion", "OfferedVersion"}));
}
