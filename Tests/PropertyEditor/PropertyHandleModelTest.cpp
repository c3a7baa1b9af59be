// Copyright Corvane. MIT License.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "TestPanel.h"

#include "Editor.h"

namespace
{
	/** What one object holds of what the edits touch. */
	struct FModel
	{
		int32 Count = 3;
		std::string Text;
		std::vector<int32> Numbers;

		bool operator==(const FModel& Other) const
		{
			return Count == Other.Count && Text == Other.Text && Numbers == Other.Numbers;
		}
		bool operator!=(const FModel& Other) const { return !(*this == Other); }
	};

	typedef std::vector<FModel> FModels;

	FModel Read(const UPanelObject& Object)
	{
		FModel Model;
		Model.Count = Object.Count;
		Model.Text = FTestPanel::ToString(Object.Text);
		Model.Numbers.assign(Object.Numbers.begin(), Object.Numbers.end());
		return Model;
	}

	/** A panel over several objects, edited at random beside plain values. */
	class FRandomEdits
	{
	public:
		FRandomEdits()
		{
			TArray<UObject*> All;
			for (const TCHAR* Name : {TEXT("A"), TEXT("B"), TEXT("C")})
			{
				Objects.push_back(&Panel.Make<UPanelObject>(Name));
				All.Add(Objects.back());
			}
			Panel.Generator->SetObjects(All);
			Now.resize(Objects.size());
		}

		void Step()
		{
			switch (*rc::gen::inRange(0, 6))
			{
				case 0:
					SetCount(*rc::gen::inRange(0, 4));
					break;
				case 1:
					SetText(*rc::gen::element<std::string>("", "a", "A", "bc"));
					break;
				case 2:
					SetElement(*rc::gen::inRange(0, 4), *rc::gen::inRange(0, 4));
					break;
				case 3:
					Resize(*rc::gen::inRange<size_t>(0, 3), *rc::gen::inRange(0, 4));
					break;
				case 4:
					Undo();
					break;
				default:
					Redo();
					break;
			}
			Compare();
		}

	private:
		/** Every write goes to all; it is a step if it changes one. */
		void Note(const FModels& Before)
		{
			if (Before != Now)
			{
				Undone.clear();
				Done.emplace_back(Before, Now);
			}
		}
		void SetCount(int32 Count)
		{
			const FModels Before = Now;
			RC_ASSERT(Panel.Handle(TEXT("Count"))->SetValue(Count) == FPropertyAccess::Success);
			for (FModel& Model : Now)
			{
				Model.Count = Count;
			}
			Note(Before);
		}
		void SetText(const std::string& Text)
		{
			const FModels Before = Now;
			RC_ASSERT(Panel.Handle(TEXT("Text"))->SetValueFromFormattedString(FString(Text.c_str())) ==
				FPropertyAccess::Success);
			for (FModel& Model : Now)
			{
				Model.Text = Text;
			}
			Note(Before);
		}
		size_t Shortest() const
		{
			size_t Num = Now[0].Numbers.size();
			for (const FModel& Model : Now)
			{
				Num = std::min(Num, Model.Numbers.size());
			}
			return Num;
		}
		void SetElement(int32 Index, int32 Number)
		{
			const FModels Before = Now;
			const TSharedPtr<IPropertyHandle> Element =
				Panel.Handle(TEXT("Numbers"))->GetChildHandle(static_cast<uint32>(Index));
			RC_ASSERT(Element.IsValid() == (static_cast<size_t>(Index) < Shortest()));
			if (Element.IsValid())
			{
				RC_ASSERT(Element->SetValue(Number) == FPropertyAccess::Success);
				for (FModel& Model : Now)
				{
					Model.Numbers[static_cast<size_t>(Index)] = Number;
				}
				Note(Before);
			}
		}
		/** Behind the panel's back, and so no step; what lies in the history would mean another array then. */
		void Resize(size_t Object, int32 Num)
		{
			Objects[Object]->Numbers.SetNum(Num);
			Now[Object].Numbers.resize(static_cast<size_t>(Num));
			GEditor->ResetTransaction(FText());
			Done.clear();
			Undone.clear();
		}
		void Undo()
		{
			RC_ASSERT(GEditor->UndoTransaction() == !Done.empty());
			if (!Done.empty())
			{
				Now = Done.back().first;
				Undone.push_back(Done.back());
				Done.pop_back();
			}
		}
		void Redo()
		{
			RC_ASSERT(GEditor->RedoTransaction() == !Undone.empty());
			if (!Undone.empty())
			{
				Now = Undone.back().second;
				Done.push_back(Undone.back());
				Undone.pop_back();
			}
		}
		void Compare()
		{
			bool bSameCount = true;
			bool bSameText = true;
			for (size_t Index = 0; Index < Objects.size(); ++Index)
			{
				RC_ASSERT(Read(*Objects[Index]) == Now[Index]);
				bSameCount &= Now[Index].Count == Now[0].Count;
				bSameText &= Now[Index].Text == Now[0].Text;
			}
			int32 Count = -1;
			FString Text;
			RC_ASSERT((Panel.Handle(TEXT("Count"))->GetValue(Count) == FPropertyAccess::Success) == bSameCount);
			RC_ASSERT(Count == (bSameCount ? Now[0].Count : -1));
			RC_ASSERT((Panel.Handle(TEXT("Text"))->GetValue(Text) == FPropertyAccess::Success) == bSameText);
			// The panel is outdated exactly when another number of elements is shown.
			RC_ASSERT(Panel.Generator->RefreshIfOutdated() == (Shortest() != NumShown));
			NumShown = Shortest();
			RC_ASSERT(Panel.FindNode("More lists/How many?/" + std::to_string(NumShown)) == nullptr);
			RC_ASSERT(
				NumShown == 0 || Panel.FindNode("More lists/How many?/" + std::to_string(NumShown - 1)) != nullptr);
		}

		FTestPanel Panel;
		std::vector<UPanelObject*> Objects;
		FModels Now;
		std::vector<std::pair<FModels, FModels>> Done;
		std::vector<std::pair<FModels, FModels>> Undone;
		size_t NumShown = 0;
	};
}

RC_GTEST_PROP(IPropertyHandle, EditsAsAPlainModelDoes, ())
{
	FRandomEdits Edits;
	const int NumSteps = *rc::gen::inRange(1, 40);
	for (int Index = 0; Index < NumSteps; ++Index)
	{
		Edits.Step();
	}
}
