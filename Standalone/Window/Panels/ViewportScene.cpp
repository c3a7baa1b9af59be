// Copyright Corvane. MIT License.
#include "ViewportScene.h"

#include <algorithm>
#include <cstring>
#include <unordered_map>

#include "Components/SceneCaptureComponent.h"
#include "EditorViews.h"
#include "Engine/Level.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "Panels/PanelText.h"
#include "WindowImages.h"
#include "WindowStyle.h"

namespace
{
	/** Half of what surrounds an actor, none of which has a shape here. In centimetres. */
	constexpr double ActorExtent = 50.0;
	constexpr int ShortName = 32;
	constexpr int NameWidth = 260;

	bool IsCamera(const AActor& Actor)
	{
		TArray<UActorComponent*> Components;
		Actor.GetComponents(Components);
		return std::any_of(Components.begin(), Components.end(),
			[](const UActorComponent* Component) { return Component->IsA<USceneCaptureComponent>(); });
	}

	QString ShortenName(const QString& Name)
	{
		if (Name.size() <= ShortName)
		{
			return Name;
		}
		const QFontMetrics Metrics(FWindowStyle::GetFont(9));
		// Measuring a name of a thousand letters would cost more than all the others.
		return Metrics.elidedText(
			Name.size() > 200 ? Name.left(100) + Name.right(100) : Name, Qt::ElideMiddle, NameWidth);
	}

	FViewportScene::FItem MakeItem(AActor& Actor, std::unordered_map<const UClass*, QIcon>& Icons)
	{
		FViewportScene::FItem Item;
		Item.Actor = &Actor;
		Item.Name = ShortenName(FPanelText::OneLine(Actor.GetName()));
		Item.Class = Actor.GetClass();
		const auto Found = Icons.find(Item.Class);
		Item.Icon = Found != Icons.end()
			? Found->second
			: Icons.emplace(Item.Class, FWindowImages::GetClassIcon(Item.Class)).first->second;
		Item.bCamera = IsCamera(Actor);
		return Item;
	}

	void Mix(uint64& Hash, uint64 Value)
	{
		Hash = (Hash ^ Value) * 0x9E3779B97F4A7C15ull;
		Hash ^= Hash >> 29;
	}

	/** By its bits: what is not a number is equal to itself here. */
	void Mix(uint64& Hash, float First, float Second)
	{
		uint32 Bits[2];
		std::memcpy(&Bits[0], &First, sizeof(First));
		std::memcpy(&Bits[1], &Second, sizeof(Second));
		Mix(Hash, (static_cast<uint64>(Bits[0]) << 32) | Bits[1]);
	}
}

uint64 FViewportScene::Sign() const
{
	uint64 Hash = 1;
	for (const AActor* Actor : FEditorViews::GetLevelWorld()->PersistentLevel->Actors)
	{
		if (!IsValid(Actor))
		{
			continue;
		}
		const FVector Location = Actor->GetActorLocation();
		const FRotator Rotation = Actor->GetActorRotation();
		Mix(Hash, reinterpret_cast<uintptr_t>(Actor));
		Mix(Hash, GetTypeHash(Actor->GetFName()));
		Mix(Hash, Location.X, Location.Y);
		Mix(Hash, Location.Z, Rotation.Pitch);
		Mix(Hash, Rotation.Yaw, Rotation.Roll);
	}
	return Hash;
}

bool FViewportScene::Update()
{
	const bool bSelectionChanged = Selection.Update();
	const uint64 SignatureNow = Sign();
	if (SignatureNow != Signature)
	{
		Signature = SignatureNow;
		ReadActors();
	}
	else if (!bSelectionChanged)
	{
		return false;
	}
	for (FItem& Item : Items)
	{
		Item.bSelected = Selection.Contains(Item.Actor.Get());
	}
	return true;
}

void FViewportScene::ReadActors()
{
	std::unordered_map<const UClass*, QIcon> Icons;
	std::vector<FItem> Old = std::move(Items);
	Items.clear();
	size_t OldIndex = 0;
	for (AActor* Actor : FEditorViews::GetLevelWorld()->PersistentLevel->Actors)
	{
		if (!IsValid(Actor))
		{
			continue;
		}
		// Both are in the level's order, so what was known comes next once what has gone is skipped.
		while (OldIndex < Old.size() && !Old[OldIndex].Actor.IsValid())
		{
			++OldIndex;
		}
		const bool bKnown = OldIndex < Old.size() && Old[OldIndex].Actor == Actor;
		Items.push_back(bKnown ? std::move(Old[OldIndex++]) : MakeItem(*Actor, Icons));
		Items.back().Location = FPoint3(Actor->GetActorLocation());
		Items.back().Rotation = Actor->GetActorRotation();
	}
}

std::vector<FViewportScene::FSeenItem> FViewportScene::FindSeen(const FViewProjection& View) const
{
	std::vector<FSeenItem> Seen;
	for (const FItem& Item : Items)
	{
		QPointF Pixel;
		double Depth = 0.0;
		if (View.Project(Item.Location, IconSize / 2.0, Pixel, Depth))
		{
			Seen.push_back({&Item, Pixel, Depth});
		}
	}
	std::stable_sort(Seen.begin(), Seen.end(),
		[](const FSeenItem& Left, const FSeenItem& Right) { return Left.Depth > Right.Depth; });
	return Seen;
}

AActor* FViewportScene::FindActorAt(const FViewProjection& View, QPointF Point) const
{
	const std::vector<FSeenItem> Seen = FindSeen(View);
	const auto Found = std::find_if(Seen.rbegin(), Seen.rend(),
		[Point](const FSeenItem& Item)
		{
			const QPointF Offset = Item.Pixel - Point;
			return qAbs(Offset.x()) <= IconSize / 2.0 && qAbs(Offset.y()) <= IconSize / 2.0;
		});
	return Found == Seen.rend() ? nullptr : Found->Item->Actor.Get();
}

bool FViewportScene::FindSelectionBounds(FPoint3& OutCentre, double& OutRadius) const
{
	FPoint3 Low;
	FPoint3 High;
	bool bFound = false;
	for (const FItem& Item : Items)
	{
		if (!Item.bSelected || !Item.Location.IsFinite())
		{
			continue;
		}
		const FPoint3& At = Item.Location;
		Low = bFound ? FPoint3(qMin(Low.X, At.X), qMin(Low.Y, At.Y), qMin(Low.Z, At.Z)) : At;
		High = bFound ? FPoint3(qMax(High.X, At.X), qMax(High.Y, At.Y), qMax(High.Z, At.Z)) : At;
		bFound = true;
	}
	OutCentre = (Low + High) * 0.5;
	OutRadius = (High - Low).Length() * 0.5 + ActorExtent;
	return bFound;
}
