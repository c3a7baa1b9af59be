// Copyright Corvane. MIT License.
#include "EveryPropertyActor.h"

AEveryPropertyActor::AEveryPropertyActor()
{
	Component = CreateDefaultSubobject<UEveryPropertyComponent>(TEXT("Component"));
	RootComponent = CreateDefaultSubobject<USceneComponent>(TEXT("Root"));
}
