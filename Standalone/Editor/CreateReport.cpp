// Copyright Corvane. MIT License.
#include "CreateReport.h"

#include "ErrorText.h"
#include "StrictJson.h"

using nlohmann::ordered_json;

namespace
{
	ordered_json Triple(const std::array<float, 3>& Values)
	{
		ordered_json Json = ordered_json::array();
		for (const float Value : Values)
		{
			Json.push_back(FStrictJson::Number(Value));
		}
		return Json;
	}

	ordered_json CameraJson(const FCreateReport::FCamera& Camera)
	{
		return {{"name", Camera.Name}, {"location", Triple(Camera.Location)}, {"rotation", Triple(Camera.Rotation)}};
	}

	ordered_json ManagerJson(const FCreateReport::FManager& Manager)
	{
		return {{"name", Manager.Name}, {"spawned", Manager.bSpawned}, {"entries", Manager.Entries}};
	}

	ordered_json SenderJson(const FCreateReport::FSender& Sender)
	{
		return {{"active", Sender.bActive}, {"name", Sender.Name}, {"standalone", Sender.StandaloneName},
			{"renderTarget", Sender.RenderTarget}};
	}

	std::string Number(float Value)
	{
		return FStrictJson::Number(Value).dump();
	}

	std::string Line(const std::string& Label, const std::string& Text)
	{
		constexpr size_t LabelWidth = 15;
		return Label + std::string(LabelWidth - Label.size(), ' ') + FErrorText::OneLine(Text) + '\n';
	}

	std::string CameraText(const FCreateReport::FCamera& Camera)
	{
		const auto& [X, Y, Z] = Camera.Location;
		const auto& [Pitch, Yaw, Roll] = Camera.Rotation;
		return Camera.Name + " at " + Number(X) + ", " + Number(Y) + ", " + Number(Z) + ", pitch " + Number(Pitch) +
			", yaw " + Number(Yaw) + ", roll " + Number(Roll);
	}

	std::string ManagerText(const FCreateReport::FManager& Manager)
	{
		return Manager.Name + (Manager.bSpawned ? " (new, " : " (already there, ") + std::to_string(Manager.Entries) +
			(Manager.Entries == 1 ? " entry)" : " entries)");
	}

	std::string SetupText(const FCreateReport::FSetup& Setup)
	{
		return Line("Render target", Setup.Asset) + Line("Camera", CameraText(Setup.Camera)) +
			Line("Sender manager", ManagerText(Setup.Manager)) + Line("Sender", Setup.Sender.Name) +
			Line("  stand-alone", Setup.Sender.StandaloneName);
	}
}

std::string FCreateReport::ToJson() const
{
	ordered_json Json = {{"ok", Setup.has_value()}, {"message", Message}, {"warning", nullptr}, {"asset", nullptr},
		{"camera", nullptr}, {"manager", nullptr}, {"sender", nullptr}};
	if (Warning)
	{
		Json["warning"] = *Warning;
	}
	if (Setup)
	{
		Json["asset"] = Setup->Asset;
		Json["camera"] = CameraJson(Setup->Camera);
		Json["manager"] = ManagerJson(Setup->Manager);
		Json["sender"] = SenderJson(Setup->Sender);
	}
	return Json.dump() + '\n';
}

std::string FCreateReport::ToText() const
{
	std::string Text = FErrorText::OneLine(Message) + '\n';
	if (Warning)
	{
		Text += Line("While typing", *Warning);
	}
	if (Setup)
	{
		Text += '\n' + SetupText(*Setup);
	}
	if (SavedTo)
	{
		Text += Line("Saved", *SavedTo);
	}
	return Text;
}
