// Copyright Corvane. MIT License.
// Random announcements, answers and restarts against a plain model.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "UpgradeFixture.h"

#include "PlatformFeatures.h"

using nlohmann::json;

namespace
{
	/** What the user and the slot are to see, whatever is done in whatever order. */
	struct FModel
	{
		struct FShown
		{
			int Number;
			std::string Address;
		};

		void Announce(int Number, const std::string& Address)
		{
			const std::string Identifier = Address.substr(Address.rfind('/') + 1);
			if (bSkips && Identifier == Offered)
			{
				return;
			}
			bSkips = false;
			Slot = "keep " + Offered;
			SlotOffered = Offered;
			Offered = Identifier;
			Shown.push_back({Number, Address});
			Latest = Number;
		}
		void Press(size_t Index, const std::string& Button)
		{
			if (Button == "Download now")
			{
				Opened.push_back(Shown[Index].Address);
			}
			if (Button == "Skip version")
			{
				bSkips = true;
				Slot = "skip " + Offered;
				SlotOffered = Offered;
			}
			for (size_t Other = 0; Other < Shown.size(); ++Other)
			{
				if (Shown[Other].Number == Latest)
				{
					Shown.erase(Shown.begin() + static_cast<std::ptrdiff_t>(Other));
					return;
				}
			}
		}
		void Restart()
		{
			Shown.clear();
			bSkips = Slot.rfind("skip ", 0) == 0;
			Offered = SlotOffered;
		}
		std::vector<std::string> GetVersions() const
		{
			std::vector<std::string> Versions;
			for (const FShown& One : Shown)
			{
				Versions.push_back(std::to_string(One.Number));
			}
			return Versions;
		}

		bool bSkips = false;
		std::string Offered;
		std::string Slot = "(none)";
		std::string SlotOffered;
		std::vector<FShown> Shown;
		int Latest = -1;
		std::vector<std::string> Opened;
	};
}

RC_GTEST_FIXTURE_PROP(FUpgradeEditor, FollowsAPlainModel, ())
{
	// On no disk, which takes its time with each save.
	FTestSaveGames SaveGames;
	IPlatformFeaturesModule::Get().SetSaveGameSystem(&SaveGames);
	FModel Model;
	const int Steps = *rc::gen::inRange(1, 25);
	for (int Step = 0; Step < Steps; ++Step)
	{
		const int Kind = *rc::gen::inRange(0, 10);
		if (Kind == 0)
		{
			RestartModule();
			Model.Restart();
		}
		else if (Kind < 5 || Model.Shown.empty())
		{
			const auto Address = *rc::gen::element<std::string>("https://corvane.example/A", "http://a.example/b/A",
				"A", "https://corvane.example/a", "https://corvane.example/", "", "//B", "/A/B");
			Announce(std::to_string(Step), Address);
			Model.Announce(Step, Address);
		}
		else
		{
			const auto Index = *rc::gen::inRange<size_t>(0, Model.Shown.size());
			const auto Button =
				*rc::gen::element<std::string>("Download now", "Remind me later", "Skip version", "Skip version");
			Press(Index, Button.c_str());
			Model.Press(Index, Button);
		}
		RC_ASSERT(GetVersions() == Model.GetVersions());
		RC_ASSERT(ReadSlot() == Model.Slot);
		RC_ASSERT(GetAddresses() == json(Model.Opened));
	}
}
