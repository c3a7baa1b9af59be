// Copyright Corvane. MIT License.
#include "InputCoreTypes.h"

const FKey EKeys::LeftMouseButton("LeftMouseButton");
const FKey EKeys::RightMouseButton("RightMouseButton");

const FKey EKeys::BackSpace("BackSpace");
const FKey EKeys::Tab("Tab");
const FKey EKeys::Enter("Enter");
const FKey EKeys::Escape("Escape");
const FKey EKeys::SpaceBar("SpaceBar");
const FKey EKeys::Up("Up");
const FKey EKeys::Down("Down");

const FKey EKeys::A("A");
const FKey EKeys::V("V");
