// Copyright Corvane. MIT License.
#include "Math/Color.h"
#include "Math/Rotator.h"
#include "Math/Vector.h"
#include "Math/Vector2D.h"

// Constant-initialised: usable by whatever runs before main.
const FVector FVector::ZeroVector = FVector();
const FVector2D FVector2D::ZeroVector = FVector2D();
const FRotator FRotator::ZeroRotator = FRotator();
const FLinearColor FLinearColor::White = FLinearColor(1.0f, 1.0f, 1.0f);
const FLinearColor FLinearColor::Black = FLinearColor(0.0f, 0.0f, 0.0f);
const FLinearColor FLinearColor::Red = FLinearColor(1.0f, 0.0f, 0.0f);
const FLinearColor FLinearColor::Transparent = FLinearColor(0.0f, 0.0f, 0.0f, 0.0f);
