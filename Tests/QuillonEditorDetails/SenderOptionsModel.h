// Copyright Corvane. MIT License.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

/** The list of sender names in the plainest way, step by step: what the real one has to come to. */
class FSenderOptionsModel
{
public:
	struct FOption
	{
		/** Of no other option that ever was. */
		int Id;
		std::u16string Text;

		bool operator==(const FOption& Other) const { return Id == Other.Id && Text == Other.Text; }
	};
	typedef std::vector<std::u16string> FNames;

	/** Up to the moment where subscribers are told. @return what they are told. */
	bool Begin(const FNames& Names, const std::u16string& CurrentName, bool bUseFirstAvailable)
	{
		if (Options.empty())
		{
			Options.push_back({NextId++, u"Use first available sender"});
		}
		for (const std::u16string& Name : Names)
		{
			const auto IsListed = [&](const FOption& Option) { return Option.Text == Name; };
			if (std::none_of(Options.begin() + 1, Options.end(), IsListed))
			{
				Options.push_back({NextId++, Name});
			}
		}
		return !bUseFirstAvailable && !Contains(Names, CurrentName);
	}
	/** After that. */
	void End(const FNames& Names, const std::u16string& CurrentName)
	{
		bool bListed = false;
		std::vector<FOption> Kept;
		for (size_t Index = 0; Index < Options.size(); ++Index)
		{
			const bool bIsCurrent = Index > 0 && Options[Index].Text == CurrentName;
			bListed = bListed || bIsCurrent;
			if (Index == 0 || bIsCurrent || Contains(Names, Options[Index].Text))
			{
				Kept.push_back(Options[Index]);
			}
		}
		Options = Kept;
		if (!bListed && CurrentName != u"Use first available sender")
		{
			Options.push_back({NextId++, CurrentName});
		}
	}

	std::vector<FOption> Options;
	int NextId = 0;

private:
	static bool Contains(const FNames& Names, const std::u16string& Name)
	{
		return std::find(Names.begin(), Names.end(), Name) != Names.end();
	}
};
