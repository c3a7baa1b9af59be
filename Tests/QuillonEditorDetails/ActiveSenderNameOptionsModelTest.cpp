// Copyright Corvane. MIT License.
// Random senders, names, and changes from outside against a plain model: which options there are, in which order, that
// those which stay are the very same strings, and what subscribers are told and see at that moment.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "SenderOptionsModel.h"

#include <map>

#include "DetailCustomisations/ActiveSenderNameOptions.h"
#include "ZAVSpoutNames.h"

namespace
{
	std::u16string Units(const FString& String)
	{
		return std::u16string(*String, static_cast<size_t>(String.Len()));
	}

	FString ToString(const std::u16string& Text)
	{
		return FString(static_cast<int32>(Text.size()), Text.c_str());
	}

	/** Few names, so that they meet. */
	rc::Gen<std::u16string> GenName()
	{
		return rc::gen::element<std::u16string>(u"A", u"B", u"C", u"D", u"E", u"F", u"a", u"Cam", u"cam", u"", u"Error",
			u"Use first available sender", u"use first available sender", u"A [lost]", u"\u202Eabc", u"line\nbreak",
			u"A longer name of a sender 0000001", u"A longer name of a sender 0000002");
	}

	/** The real list beside the model. */
	class FComparison
	{
	public:
		FComparison()
		{
			Real.OnLostStateChanged.AddLambda(
				[this](bool bLost)
				{
					Told.push_back(bLost);
					SeenWhenTold = Look();
				});
		}

		void Refresh(
			const FSenderOptionsModel::FNames& Names, const std::u16string& CurrentName, bool bUseFirstAvailable)
		{
			TArray<FString> Active;
			for (const std::u16string& Name : Names)
			{
				Active.Add(ToString(Name));
			}
			ZAVSpoutNames::SetActiveSenderNames(Active);
			Told.clear();
			const TArray<TSharedPtr<FString>> Returned = Real.RefreshOptions(ToString(CurrentName), bUseFirstAvailable);
			const bool bLost = Model.Begin(Names, CurrentName, bUseFirstAvailable);
			RC_ASSERT(Told == std::vector<bool>{bLost});
			// In this order: what is new in the real list gets its number here.
			RC_ASSERT(SeenWhenTold == Model.Options);
			Model.End(Names, CurrentName);
			RC_ASSERT(Look() == Model.Options);
			RC_ASSERT(Returned == Real.Options);
			const FString Name = ToString(CurrentName);
			const TSharedPtr<FString>* First = Real.Options.FindByPredicate([&Name](const TSharedPtr<FString>& Option)
				{ return Option->Equals(Name, ESearchCase::CaseSensitive); });
			RC_ASSERT(Real.GetCurrentOption() == First);
		}
		/** Somebody else changes the list. */
		void Tamper(int Way, const std::u16string& Text)
		{
			const int32 Place = *rc::gen::inRange<int32>(0, Real.Options.Num());
			const size_t ModelPlace = static_cast<size_t>(Place);
			switch (Way)
			{
				case 0:
					Real.Options.RemoveAt(Place);
					Model.Options.erase(Model.Options.begin() + Place);
					break;
				case 1:
					*Real.Options[Place] = ToString(Text);
					Model.Options[ModelPlace].Text = Text;
					break;
				case 2:
					Real.Options.Add(MakeShared<FString>(ToString(Text)));
					Model.Options.push_back({Model.NextId++, Text});
					Look();
					break;
				default:
					std::swap(Real.Options[Place], Real.Options[0]);
					std::swap(Model.Options[ModelPlace], Model.Options[0]);
			}
		}
		bool IsEmpty() const { return Real.Options.Num() == 0; }

	private:
		/** The real options; each string that was never seen before gets the next number. */
		std::vector<FSenderOptionsModel::FOption> Look()
		{
			std::vector<FSenderOptionsModel::FOption> Seen;
			for (const TSharedPtr<FString>& Option : Real.Options)
			{
				const auto Entry = Ids.emplace(Option.Get(), Ids.size());
				if (Entry.second)
				{
					// So that no other string ever has this one's address.
					KeptAlive.Add(Option);
				}
				Seen.push_back({static_cast<int>(Entry.first->second), Units(*Option)});
			}
			return Seen;
		}
		FActiveSenderNameOptions Real;
		FSenderOptionsModel Model;
		std::vector<bool> Told;
		std::vector<FSenderOptionsModel::FOption> SeenWhenTold;
		std::map<const FString*, size_t> Ids;
		TArray<TSharedPtr<FString>> KeptAlive;
	};
}

RC_GTEST_PROP(FActiveSenderNameOptions, FollowsAPlainModel, ())
{
	FComparison Both;
	FSenderOptionsModel::FNames Names;
	for (const int What : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 12)))
	{
		switch (What)
		{
			case 0:
			case 1:
				Names = *rc::gen::container<FSenderOptionsModel::FNames>(GenName());
				break;
			case 2:
				std::reverse(Names.begin(), Names.end());
				break;
			case 3:
				if (!Names.empty())
				{
					Names[*rc::gen::inRange<size_t>(0, Names.size())] = *GenName();
				}
				break;
			case 4:
				if (!Both.IsEmpty())
				{
					Both.Tamper(*rc::gen::inRange(0, 4), *GenName());
				}
				break;
			default:
				break;
		}
		// Often twice or more with nothing changed.
		const std::u16string Current = *GenName();
		for (int Times = *rc::gen::inRange(1, 4); Times > 0; --Times)
		{
			Both.Refresh(Names, Current, *rc::gen::arbitrary<bool>());
		}
	}
}

RC_GTEST_PROP(FActiveSenderNameOptions, FollowsAPlainModelWithManySenders, ())
{
	FComparison Both;
	for (int Round = 0; Round < 4; ++Round)
	{
		FSenderOptionsModel::FNames Names;
		for (const int Number : *rc::gen::container<std::vector<int>>(200, rc::gen::inRange(0, 150)))
		{
			// Short and long ones, and pairs that differ in case only.
			Names.push_back(Units(FString::Printf(Number % 2 == 0 ? TEXT("Sender%d") : TEXT("sender%d"), Number / 2)));
		}
		Both.Refresh(Names, Names[0], false);
		Both.Refresh(Names, u"lost", false);
	}
}
