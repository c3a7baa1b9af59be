// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "TestPanel.h"

#include <functional>

#include "AllocationCount.h"

#include "Editor.h"
#include "Editor/Transactor.h"

namespace
{
	typedef FPropertyAccess::Result FResult;
	typedef std::vector<std::string> FLog;

	std::string NameOf(const TSharedRef<IPropertyHandle>& Handle)
	{
		return FTestPanel::ToString(Handle->GetPropertyDisplayName().ToString());
	}

	std::string PathOf(const TSharedPtr<IPropertyHandle>& Handle)
	{
		return Handle.IsValid() ? FTestPanel::ToString(Handle->GeneratePathToProperty()) : "none";
	}

	uint32 CountChildren(const IPropertyHandle& Handle)
	{
		uint32 Num = 1000;
		EXPECT_EQ(Handle.GetNumChildren(Num), FPropertyAccess::Success);
		return Num;
	}
}

TEST(IPropertyHandle, IsNamedAsUsersReadIt)
{
	FTestPanel Panel;
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	Object.Numbers = {5, 6};
	Panel.Show({&Object});
	EXPECT_EQ(NameOf(Panel.Handle(TEXT("bShown"))), "Shown");
	EXPECT_EQ(NameOf(Panel.Handle(TEXT("Numbers"))), "How many?");
	EXPECT_EQ(NameOf(Panel.Handle(TEXT("Numbers[1]"))), "1");
	EXPECT_EQ(NameOf(Panel.Handle(TEXT("Line.From"))), "From");
}

TEST(IPropertyHandle, LeadsThroughStructuresAndArrays)
{
	FTestPanel Panel;
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	Object.Line.Between.SetNum(2);
	Panel.Show({&Object});
	const TSharedRef<IPropertyHandle> Line = Panel.Handle(TEXT("Line"));
	EXPECT_EQ(PathOf(Line->GetChildHandle("Between")->GetChildHandle(1)->GetChildHandle("X")), "Line.Between[1].X");
	EXPECT_EQ(PathOf(Line->GetChildHandle(0)), "Line.From");
	EXPECT_EQ(PathOf(Line->GetChildHandle(3)), "none");
	EXPECT_EQ(PathOf(Line->GetChildHandle("from")), "Line.From");
	EXPECT_EQ(PathOf(Line->GetChildHandle("X")), "Line.From.X");
	EXPECT_EQ(PathOf(Line->GetChildHandle("X", false)), "none");
	EXPECT_EQ(PathOf(Line->GetChildHandle("Nobody")), "none");
	EXPECT_EQ(PathOf(Line->GetChildHandle("Secret")), "none");
	EXPECT_EQ(PathOf(Line->GetChildHandle("Between")->GetChildHandle("X")), "none");
	EXPECT_EQ(PathOf(Panel.Handle(TEXT("Count"))->GetChildHandle("X")), "none");
	EXPECT_EQ(PathOf(Panel.Handle(TEXT("Count"))->GetChildHandle(0)), "none");
}

TEST(IPropertyHandle, IsTheSameForAllWhoAsk)
{
	FTestPanel Panel;
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	Object.Numbers = {5};
	Panel.Show({&Object});
	const TSharedRef<IPropertyHandle> Line = Panel.Handle(TEXT("Line"));
	EXPECT_EQ(Line->GetChildHandle("From"), Line->GetChildHandle(0));
	EXPECT_EQ(Panel.Handle(TEXT("Numbers"))->GetChildHandle(0), Panel.Handle(TEXT("Numbers[0]")));
}

TEST(IPropertyHandle, CountsWhatAPanelMayShow)
{
	FTestPanel Panel;
	UPanelObject& A = Panel.Make<UPanelObject>(TEXT("A"));
	UPanelObject& B = Panel.Make<UPanelObject>(TEXT("B"));
	A.Numbers = {1, 2, 3};
	B.Numbers = {1, 2};
	Panel.Show({&A, &B});
	EXPECT_EQ(CountChildren(*Panel.Handle(TEXT("Line"))), 3u);
	EXPECT_EQ(CountChildren(*Panel.Handle(TEXT("Fixed"))), 2u);
	EXPECT_EQ(CountChildren(*Panel.Handle(TEXT("Numbers"))), 2u);
	EXPECT_EQ(CountChildren(*Panel.Handle(TEXT("Points"))), 0u);
	EXPECT_EQ(CountChildren(*Panel.Handle(TEXT("Count"))), 0u);
}

TEST(IPropertyHandle, ReadsAndWritesEveryType)
{
	FTestPanel Panel;
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	Panel.Show({&Object});
	const auto Check = [&](const TCHAR* Path, auto NewValue, auto IsSet)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(Path));
		decltype(NewValue) Read{};
		EXPECT_EQ(Panel.Handle(Path)->SetValue(NewValue), FPropertyAccess::Success);
		EXPECT_EQ(Panel.Handle(Path)->GetValue(Read), FPropertyAccess::Success);
		EXPECT_TRUE(IsSet(Read));
	};
	Check(TEXT("bShown"), false, [&](bool bRead) { return !bRead && !Object.bShown; });
	Check(TEXT("Count"), -9, [&](int32 Read) { return Read == -9 && Object.Count == -9; });
	Check(TEXT("Ratio"), 2.5f, [&](float Read) { return Read == 2.5f && Object.Ratio == 2.5f; });
	Check(TEXT("Text"), FString(TEXT("aB")),
		[&](const FString& Read) { return Read.Equals(TEXT("aB")) && Object.Text.Equals(Read); });
	Check(TEXT("Word"), FName("Hat_3"), [&](FName Read) { return Read == "Hat_3" && Object.Word == Read; });
	Check(TEXT("Title"), NSLOCTEXT("N", "K", "T"),
		[&](const FText& Read)
		{ return FTextInspector::GetKey(Read).GetValue() == TEXT("K") && Object.Title.IdenticalTo(Read); });
	Check(TEXT("Partner"), static_cast<UObject*>(&Object),
		[&](UObject* Read) { return Read == &Object && Object.Partner == Read; });
	EXPECT_EQ(Panel.Handle(TEXT("Text"))->SetValue(TEXT("literal")), FPropertyAccess::Success);
	EXPECT_TRUE(Object.Text.Equals(TEXT("literal")));
	EXPECT_EQ(Panel.Handle(TEXT("Partner"))->SetValue(static_cast<UObject*>(nullptr)), FPropertyAccess::Success);
	EXPECT_EQ(Object.Partner, nullptr);
}

TEST(IPropertyHandle, RefusesAnotherTypeAndDoesNothingThen)
{
	FTestPanel Panel;
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	Panel.Show({&Object});
	for (const TCHAR* Path : {TEXT("bShown"), TEXT("Count"), TEXT("Ratio"), TEXT("Text"), TEXT("Word"), TEXT("Title"),
			 TEXT("Partner"), TEXT("Line"), TEXT("Numbers")})
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(Path));
		const TSharedRef<IPropertyHandle> Handle = Panel.Handle(Path);
		// Of the seven types at most one is the property's.
		int32 Refused = 0;
		const auto Try = [&](auto Value)
		{
			Refused += Handle->GetValue(Value) == FPropertyAccess::Fail ? 1 : 0;
			const FName Kept = Object.Word;
			if (Handle->GetValue(Value) == FPropertyAccess::Fail)
			{
				EXPECT_EQ(Handle->SetValue(Value), FPropertyAccess::Fail);
			}
			EXPECT_EQ(Object.Word, Kept);
		};
		Try(false);
		Try(int32(0));
		Try(0.0f);
		Try(FString());
		Try(FName());
		Try(FText());
		Try(static_cast<UObject*>(nullptr));
		const bool bPlain =
			Handle->GetProperty()->GetFName() != "Line" && Handle->GetProperty()->GetFName() != "Numbers";
		EXPECT_EQ(Refused, bPlain ? 6 : 7);
	}
	EXPECT_EQ(Panel.Handle(TEXT("Partner"))->SetValue(static_cast<UObject*>(Panel.Package)), FPropertyAccess::Fail);
	EXPECT_EQ(UPanelObject::Heard, FLog());
	EXPECT_EQ(Panel.Finished, "");
}

TEST(IPropertyHandle, TellsThatObjectsDifferAndLeavesTheAnswerAlone)
{
	FTestPanel Panel;
	UPanelObject& A = Panel.Make<UPanelObject>(TEXT("A"));
	UPanelObject& B = Panel.Make<UPanelObject>(TEXT("B"));
	UPanelObject& C = Panel.Make<UPanelObject>(TEXT("C"));
	C.Count = 4;
	A.Text = TEXT("case");
	B.Text = TEXT("case");
	C.Text = TEXT("CASE");
	Panel.Show({&A, &B, &C});
	int32 Count = 77;
	EXPECT_EQ(Panel.Handle(TEXT("Count"))->GetValue(Count), FPropertyAccess::MultipleValues);
	EXPECT_EQ(Count, 77);
	FString Text = TEXT("mine");
	EXPECT_EQ(Panel.Handle(TEXT("Text"))->GetValue(Text), FPropertyAccess::MultipleValues);
	EXPECT_EQ(Panel.Handle(TEXT("Text"))->GetValueAsFormattedString(Text), FPropertyAccess::MultipleValues);
	EXPECT_TRUE(Text.Equals(TEXT("mine")));
	UObject* Partner = &A;
	EXPECT_EQ(Panel.Handle(TEXT("Partner"))->GetValue(Partner), FPropertyAccess::Success);
	EXPECT_EQ(Partner, nullptr);
	B.Partner = &A;
	Partner = &C;
	EXPECT_EQ(Panel.Handle(TEXT("Partner"))->GetValue(Partner), FPropertyAccess::MultipleValues);
	EXPECT_EQ(Partner, &C);
}

TEST(IPropertyHandle, TellsEveryObjectBeforeAndAfterAWrite)
{
	FTestPanel Panel;
	UPanelObject& A = Panel.Make<UPanelObject>(TEXT("A"));
	UPanelObject& B = Panel.Make<UPanelObject>(TEXT("B"));
	A.Line.Between.SetNum(1);
	B.Line.Between.SetNum(1);
	Panel.Show({&A, &B});
	EXPECT_EQ(Panel.Handle(TEXT("Line.Between[0].X"))->SetValue(12), FPropertyAccess::Success);
	EXPECT_EQ(A.Line.Between[0].X, 12);
	EXPECT_EQ(B.Line.Between[0].X, 12);
	EXPECT_EQ(UPanelObject::Heard, FLog({"A before Line", "B before Line", "A after Line/X 16", "B after Line/X 16"}));
	EXPECT_EQ(Panel.Finished, "Line/X,");
}

TEST(IPropertyHandle, MakesOneUndoStepOfAWriteToManyObjects)
{
	FTestPanel Panel;
	UPanelObject& A = Panel.Make<UPanelObject>(TEXT("A"));
	UPanelObject& B = Panel.Make<UPanelObject>(TEXT("B"));
	UPanelObject& C = Panel.Make<UPanelObject>(TEXT("C"));
	B.bShown = false;
	Panel.Show({&A, &B, &C});
	const TSharedRef<IPropertyHandle> Handle = Panel.Handle(TEXT("bShown"));
	Handle->SetValue(false);
	EXPECT_EQ(Panel.CountUndoSteps(), 1);
	EXPECT_TRUE(Panel.IsDirty());
	EXPECT_EQ(FTestPanel::ToString(GEditor->Trans->GetUndoContext().Title.ToString()), "Edit Shown");
	const int32 NumRefreshed = Panel.NumRefreshed;
	GEditor->UndoTransaction();
	EXPECT_TRUE(A.bShown && !B.bShown && C.bShown);
	bool bShown = false;
	EXPECT_EQ(Handle->GetValue(bShown), FPropertyAccess::MultipleValues);
	GEditor->RedoTransaction();
	EXPECT_EQ(Handle->GetValue(bShown), FPropertyAccess::Success);
	EXPECT_FALSE(Panel.Generator->RefreshIfOutdated());
	EXPECT_EQ(Panel.NumRefreshed, NumRefreshed);
}

TEST(IPropertyHandle, TellsOfAnUnchangedWriteAndLeavesNoTraceOfIt)
{
	FTestPanel Panel;
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	Panel.Show({&Object});
	Panel.Handle(TEXT("Count"))->SetValue(8);
	GEditor->UndoTransaction();
	Panel.Save();
	UPanelObject::Heard.clear();
	EXPECT_EQ(Panel.Handle(TEXT("Text"))->SetValue(FString()), FPropertyAccess::Success);
	EXPECT_EQ(UPanelObject::Heard, FLog({"A before Text", "A after Text/Text 16"}));
	EXPECT_EQ(Panel.Finished, "Count/Count,Text/Text,");
	EXPECT_EQ(Panel.CountUndoSteps(), 0);
	EXPECT_TRUE(GEditor->Trans->CanRedo());
	EXPECT_FALSE(Panel.IsDirty());
}

TEST(IPropertyHandle, WritesWithoutUndoWhenAskedOrWithoutEditor)
{
	FTestPanel Panel;
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	Panel.Show({&Object});
	const TSharedRef<IPropertyHandle> Handle = Panel.Handle(TEXT("Count"));
	EXPECT_EQ(Handle->SetValue(8, EPropertyValueSetFlags::NotTransactable), FPropertyAccess::Success);
	EXPECT_EQ(Object.Count, 8);
	EXPECT_EQ(UPanelObject::Heard, FLog({"A before Count", "A after Count/Count 16"}));
	EXPECT_EQ(Panel.Finished, "Count/Count,");
	EXPECT_EQ(Panel.CountUndoSteps(), 0);
	EXPECT_TRUE(Panel.IsDirty());
	{
		const TGuardValue<UEditorEngine*> NoEditor(GEditor, nullptr);
		EXPECT_EQ(Handle->SetValue(9), FPropertyAccess::Success);
	}
	EXPECT_EQ(Object.Count, 9);
	EXPECT_EQ(Panel.CountUndoSteps(), 0);
}

TEST(IPropertyHandle, LetsRawDataBeChangedWithoutUndo)
{
	FTestPanel Panel;
	UPanelObject& A = Panel.Make<UPanelObject>(TEXT("A"));
	UPanelObject& B = Panel.Make<UPanelObject>(TEXT("B"));
	Panel.Show({&A, &B});
	const TSharedRef<IPropertyHandle> Handle = Panel.Handle(TEXT("Fixed.X"));
	TArray<void*> Data = {nullptr};
	Handle->AccessRawData(Data);
	EXPECT_EQ(Data, TArray<void*>({nullptr, &A.Fixed.X, &B.Fixed.X}));
	TArray<const void*> ConstData;
	const IPropertyHandle& ConstHandle = *Handle;
	ConstHandle.AccessRawData(ConstData);
	EXPECT_EQ(ConstData, TArray<const void*>({&A.Fixed.X, &B.Fixed.X}));
	TArray<UObject*> Outers = {nullptr};
	Handle->GetOuterObjects(Outers);
	EXPECT_EQ(Outers, TArray<UObject*>({nullptr, &A, &B}));

	Panel.Save();
	Handle->NotifyPreChange();
	*static_cast<int32*>(Data[1]) = 5;
	Handle->NotifyPostChange(EPropertyChangeType::ArrayAdd);
	Handle->NotifyPostChange();
	EXPECT_EQ(Panel.Finished, "");
	Handle->NotifyFinishedChangingProperties();
	EXPECT_EQ(UPanelObject::Heard,
		FLog({"A before Fixed", "B before Fixed", "A after Fixed/X 2", "B after Fixed/X 2", "A after Fixed/X 1",
			"B after Fixed/X 1"}));
	EXPECT_EQ(Panel.Finished, "Fixed/X,");
	EXPECT_TRUE(Panel.IsDirty());
	EXPECT_EQ(Panel.CountUndoSteps(), 0);
}

TEST(IPropertyHandle, KeepsRawDataAndObjectsInStepWhenAnArrayIsTooShort)
{
	FTestPanel Panel;
	UPanelObject& A = Panel.Make<UPanelObject>(TEXT("A"));
	UPanelObject& B = Panel.Make<UPanelObject>(TEXT("B"));
	A.Numbers = {1, 2};
	B.Numbers = {3, 4};
	Panel.Show({&A, &B});
	const TSharedRef<IPropertyHandle> Second = Panel.Handle(TEXT("Numbers[1]"));
	A.Numbers = {1};
	TArray<void*> Data;
	Second->AccessRawData(Data);
	EXPECT_EQ(Data, TArray<void*>({nullptr, &B.Numbers[1]}));
	TArray<UObject*> Outers;
	Second->GetOuterObjects(Outers);
	EXPECT_EQ(Outers, TArray<UObject*>({&A, &B}));
	// One object without the value is enough.
	int32 Number = 9;
	EXPECT_EQ(Second->GetValue(Number), FPropertyAccess::Fail);
	EXPECT_EQ(Number, 9);
	EXPECT_FALSE(Second->IsValidHandle());
	EXPECT_EQ(Second->SetValue(5), FPropertyAccess::Fail);
	EXPECT_EQ(B.Numbers[1], 4);
	EXPECT_EQ(UPanelObject::Heard, FLog());
	// An element that comes back is the same one.
	A.Numbers = {1, 4};
	EXPECT_EQ(Second->GetValue(Number), FPropertyAccess::Success);
	EXPECT_EQ(Number, 4);
}

TEST(IPropertyHandle, FindsElementsAnewAfterTheArrayHasMoved)
{
	FTestPanel Panel;
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	Object.Points.SetNum(1);
	Panel.Show({&Object});
	const TSharedRef<IPropertyHandle> X = Panel.Handle(TEXT("Points[0].X"));
	Object.Points.SetNum(1000);
	EXPECT_EQ(X->SetValue(55), FPropertyAccess::Success);
	EXPECT_EQ(Object.Points[0].X, 55);
	Object.Points.Empty();
	EXPECT_EQ(X->SetValue(56), FPropertyAccess::Fail);
	uint32 Num = 3;
	EXPECT_EQ(Panel.Handle(TEXT("Points[0]"))->GetNumChildren(Num), FPropertyAccess::Fail);
	EXPECT_EQ(Num, 3u);
}

TEST(IPropertyHandle, SkipsObjectsThatDie)
{
	FTestPanel Panel;
	UPanelObject& A = Panel.Make<UPanelObject>(TEXT("A"));
	UPanelObject& B = Panel.Make<UPanelObject>(TEXT("B"));
	A.Count = 4;
	Panel.Show({&A, &B});
	const TSharedRef<IPropertyHandle> Handle = Panel.Handle(TEXT("Count"));
	UPanelObject::OnHeard = [&](UPanelObject&) { A.MarkPendingKill(); };
	EXPECT_EQ(Handle->SetValue(6), FPropertyAccess::Success);
	EXPECT_EQ(A.Count, 4);
	EXPECT_EQ(B.Count, 6);
	EXPECT_EQ(UPanelObject::Heard, FLog({"A before Count", "B before Count", "B after Count/Count 16"}));
	int32 Count = 0;
	EXPECT_EQ(Handle->GetValue(Count), FPropertyAccess::Success);
	EXPECT_EQ(Count, 6);
	TArray<UObject*> Outers;
	Handle->GetOuterObjects(Outers);
	EXPECT_EQ(Outers, TArray<UObject*>({&B}));
	B.MarkPendingKill();
	EXPECT_FALSE(Handle->IsValidHandle());
	EXPECT_EQ(Handle->GetValue(Count), FPropertyAccess::Fail);
	EXPECT_EQ(Handle->SetValue(7), FPropertyAccess::Fail);
	TArray<void*> Data;
	Handle->AccessRawData(Data);
	EXPECT_EQ(Data.Num(), 0);
}

TEST(IPropertyHandle, IsReadOnlyBelowWhatIsReadOnly)
{
	FTestPanel Panel;
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	Panel.Show({&Object});
	EXPECT_TRUE(Panel.Handle(TEXT("Fixed"))->IsEditConst());
	EXPECT_TRUE(Panel.Handle(TEXT("Fixed.X"))->IsEditConst());
	EXPECT_FALSE(Panel.Handle(TEXT("Line.Width"))->IsEditConst());
	// Only users are kept from it.
	EXPECT_EQ(Panel.Handle(TEXT("bFixed"))->SetValue(true), FPropertyAccess::Success);
	EXPECT_TRUE(Object.bFixed);
}

TEST(IPropertyHandle, FailsInEverythingWhenItIsOfNothing)
{
	FTestPanel Panel;
	TSharedPtr<IPropertyHandle> Handle;
	Panel.Module.RegisterCustomClassLayout("PanelObject",
		FTestClassLayout::Maker([&](IDetailLayoutBuilder& Builder) { Handle = Builder.GetProperty("Nobody"); }));
	UPanelObject& Object = Panel.Make<UPanelObject>(TEXT("A"));
	Panel.Show({&Object});
	const auto CheckDead = [](const TSharedPtr<IPropertyHandle>& Dead)
	{
		FString Text = TEXT("kept");
		uint32 Num = 5;
		TArray<void*> Data;
		TArray<UObject*> Outers;
		EXPECT_FALSE(Dead->IsValidHandle());
		EXPECT_EQ(Dead->GetProperty(), nullptr);
		EXPECT_EQ(Dead->GetValueAsFormattedString(Text), FPropertyAccess::Fail);
		EXPECT_EQ(Dead->GetValue(Text), FPropertyAccess::Fail);
		EXPECT_TRUE(Text.Equals(TEXT("kept")));
		EXPECT_EQ(Dead->SetValueFromFormattedString(TEXT("1")), FPropertyAccess::Fail);
		EXPECT_EQ(Dead->SetValue(1), FPropertyAccess::Fail);
		EXPECT_EQ(Dead->SetValue(static_cast<UObject*>(nullptr)), FPropertyAccess::Fail);
		EXPECT_EQ(Dead->GetNumChildren(Num), FPropertyAccess::Fail);
		EXPECT_FALSE(Dead->GetChildHandle("X").IsValid());
		EXPECT_FALSE(Dead->GetChildHandle(0).IsValid());
		EXPECT_FALSE(Dead->IsEditConst());
		EXPECT_EQ(PathOf(Dead), "");
		EXPECT_TRUE(Dead->GetPropertyDisplayName().IsEmpty());
		Dead->AccessRawData(Data);
		Dead->GetOuterObjects(Outers);
		EXPECT_EQ(Data.Num() + Outers.Num(), 0);
		Dead->NotifyPreChange();
		Dead->NotifyPostChange();
		Dead->NotifyFinishedChangingProperties();
		Dead->MarkHiddenByCustomization();
		EXPECT_EQ(FTestPanel::TextOf(Dead->CreatePropertyNameWidget()), "");
		EXPECT_EQ(FTestPanel::TextOf(Dead->CreatePropertyValueWidget()), "");
	};
	CheckDead(Handle);
	EXPECT_EQ(Panel.Finished, "");
	// So does one that outlives its rows, whatever it was of.
	const TSharedPtr<IPropertyHandle> Former[] = {
		Panel.Handle(TEXT("Count")), Panel.Handle(TEXT("Line.From")), Panel.Handle(TEXT("Numbers"))};
	Panel.Show({&Object});
	for (const TSharedPtr<IPropertyHandle>& Each : Former)
	{
		CheckDead(Each);
	}
	EXPECT_EQ(UPanelObject::Heard, FLog());
}

#ifndef __SANITIZE_ADDRESS__
TEST(IPropertyHandle, TakesMemoryOnceForTheDataOfManyObjects)
{
	FTestPanel Panel;
	TArray<UObject*> Objects;
	for (int32 Index = 0; Index < 100; ++Index)
	{
		Objects.Add(&Panel.Make<UPanelObject>(*FString::Printf(TEXT("Object%d"), Index)));
	}
	Panel.Generator->SetObjects(Objects);
	const TSharedRef<IPropertyHandle> Handle = Panel.Handle(TEXT("Numbers"));
	const int64 Before = FAllocationCount::Get();
	TArray<void*> Data;
	Handle->AccessRawData(Data);
	TArray<const void*> ConstData;
	const IPropertyHandle& ConstHandle = *Handle;
	ConstHandle.AccessRawData(ConstData);
	TArray<UObject*> Outers;
	Handle->GetOuterObjects(Outers);
	EXPECT_EQ(FAllocationCount::Get() - Before, 3);
	EXPECT_EQ(Data.Num() + ConstData.Num() + Outers.Num(), 300);
}
#endif
