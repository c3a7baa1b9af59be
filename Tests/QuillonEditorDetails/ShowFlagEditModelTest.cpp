// Copyright Corvane. MIT License.
// Random overrides, templates and clicks on several components against a plain model.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "DetailsFixture.h"

#include <cctype>

#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "Widgets/Input/SCheckBox.h"
#include "ZAVCaptureComponent.h"
#include "ZAVCineCamCapture.h"

namespace
{
	typedef std::vector<std::pair<std::string, bool>> FOverrides;

	const char* const Flags[] = {"Bloom", "Fog", "Grass"};
	const char* const FlagNames[] = {"Bloom", "Fog", "InstancedGrass"};

	std::string Lower(std::string Name)
	{
		for (char& Letter : Name)
		{
			Letter = static_cast<char>(std::tolower(static_cast<unsigned char>(Letter)));
		}
		return Name;
	}

	/** A component in the plainest way. */
	struct FModel
	{
		FOverrides Overrides;
		/** By flag: what the template has. */
		std::vector<bool> Defaults;

		bool IsOn(size_t Flag) const
		{
			for (const auto& Override : Overrides)
			{
				if (Lower(Override.first) == Lower(FlagNames[Flag]))
				{
					return Override.second;
				}
			}
			return Defaults[Flag];
		}
		void Set(size_t Flag, bool bOn)
		{
			const std::string Name = Lower(FlagNames[Flag]);
			FOverrides Left;
			bool bFound = false;
			for (auto Override : Overrides)
			{
				const bool bThis = Lower(Override.first) == Name;
				if (bThis && bOn == Defaults[Flag])
				{
					continue;
				}
				if (bThis && !bFound)
				{
					bFound = true;
					Override.second = bOn;
				}
				Left.push_back(Override);
			}
			if (bOn != Defaults[Flag] && !bFound)
			{
				Left.emplace_back(FlagNames[Flag], bOn);
			}
			Overrides = Left;
		}
	};

	FOverrides Read(const UZAVCaptureComponent& Component)
	{
		FOverrides Overrides;
		for (const FEngineShowFlagsSetting& Setting : Component.ShowFlagSettings)
		{
			Overrides.emplace_back(TCHAR_TO_UTF8(*Setting.ShowFlagName), Setting.Enabled);
		}
		return Overrides;
	}

	void Write(UZAVCaptureComponent& Component, const FOverrides& Overrides)
	{
		Component.ShowFlagSettings.Empty();
		for (const auto& Override : Overrides)
		{
			FEngineShowFlagsSetting& Setting = Component.ShowFlagSettings.AddDefaulted_GetRef();
			Setting.ShowFlagName = FString(Override.first.c_str());
			Setting.Enabled = Override.second;
		}
	}
}

class FShowFlagEdit : public FDetailsFixture
{
protected:
	/** A component of a camera, or one with the class's own template. */
	void Add(bool bOfCamera)
	{
		UZAVCaptureComponent& Component =
			bOfCamera ? SpawnCaptureComponent() : *NewObject<UZAVCaptureComponent>(GetTransientPackage());
		auto* Archetype = static_cast<UZAVCaptureComponent*>(Component.GetArchetype());
		Formers.emplace_back(Archetype, Archetype->ShowFlags);
		FModel Model;
		for (const char* Name : FlagNames)
		{
			const uint32 Index = static_cast<uint32>(FEngineShowFlags::FindIndexByName(UTF8_TO_TCHAR(Name)));
			if (Models.size() < 2)
			{
				Archetype->ShowFlags.SetSingleFlag(Index, *rc::gen::arbitrary<bool>());
			}
			Model.Defaults.push_back(Archetype->ShowFlags.GetSingleFlag(Index));
			// Its own flags are not to be looked at.
			Component.ShowFlags.SetSingleFlag(Index, *rc::gen::arbitrary<bool>());
		}
		Model.Overrides = *rc::gen::container<FOverrides>(
			rc::gen::pair(rc::gen::element<std::string>("Bloom", "bloom", "BLOOM", "Fog", "fOg", "InstancedGrass",
							  "Grass", "", "no flag", "Bloom2"),
				rc::gen::arbitrary<bool>()));
		Write(Component, Model.Overrides);
		Models.push_back(Model);
		Components.Add(&Component);
	}
	void CompareBoxes(const FDetailsRows& Rows) const
	{
		for (size_t Flag = 0; Flag < 3; ++Flag)
		{
			bool bAny = false;
			bool bAll = true;
			for (const FModel& Model : Models)
			{
				bAny = bAny || Model.IsOn(Flag);
				bAll = bAll && Model.IsOn(Flag);
			}
			const ECheckBoxState Expected = bAll ? ECheckBoxState::Checked
				: bAny                           ? ECheckBoxState::Undetermined
												 : ECheckBoxState::Unchecked;
			RC_ASSERT(Rows.GetBox(Flags[Flag]).GetCheckedState() == Expected);
		}
	}
	~FShowFlagEdit() override
	{
		for (size_t Index = Formers.size(); Index-- > 0;)
		{
			Formers[Index].first->ShowFlags = Formers[Index].second;
		}
	}

	TArray<UObject*> Components;
	std::vector<FModel> Models;
	std::vector<std::pair<UZAVCaptureComponent*, FEngineShowFlags>> Formers;
};

RC_GTEST_FIXTURE_PROP(FShowFlagEdit, FollowsAPlainModel, ())
{
	// The first two of different templates, so that these are settled before the others come.
	const int NumComponents = *rc::gen::inRange(1, 5);
	for (int Number = 0; Number < NumComponents; ++Number)
	{
		Add(Number % 2 == 0);
	}
	const FDetailsRows Rows(Components);
	CompareBoxes(Rows);
	for (const size_t Flag : *rc::gen::container<std::vector<size_t>>(rc::gen::inRange<size_t>(0, 3)))
	{
		const bool bOn = Rows.GetBox(Flags[Flag]).GetCheckedState() != ECheckBoxState::Checked;
		Rows.Click(Flags[Flag]);
		for (size_t Index = 0; Index < Models.size(); ++Index)
		{
			Models[Index].Set(Flag, bOn);
			RC_ASSERT(Read(static_cast<UZAVCaptureComponent&>(*Components[static_cast<int32>(Index)])) ==
				Models[Index].Overrides);
		}
		CompareBoxes(Rows);
	}
}
