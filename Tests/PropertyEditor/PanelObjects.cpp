// Copyright Corvane. MIT License.
#include "PanelObjects.h"

std::vector<std::string> UPanelObject::Heard;
std::function<void(UPanelObject&)> UPanelObject::OnHeard;

namespace
{
	std::string NameOf(const FProperty* Property)
	{
		return Property ? TCHAR_TO_UTF8(*Property->GetName()) : "?";
	}
}

void UPanelObject::PreEditChange(FProperty* PropertyAboutToChange)
{
	Super::PreEditChange(PropertyAboutToChange);
	Heard.push_back(TCHAR_TO_UTF8(*GetName()) + (" before " + NameOf(PropertyAboutToChange)));
	if (OnHeard)
	{
		OnHeard(*this);
	}
}

void UPanelObject::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	Super::PostEditChangeProperty(PropertyChangedEvent);
	Heard.push_back(TCHAR_TO_UTF8(*GetName()) + (" after " + NameOf(PropertyChangedEvent.MemberProperty)) + "/" +
		NameOf(PropertyChangedEvent.Property) + " " + std::to_string(PropertyChangedEvent.ChangeType));
	if (OnHeard)
	{
		OnHeard(*this);
	}
}
