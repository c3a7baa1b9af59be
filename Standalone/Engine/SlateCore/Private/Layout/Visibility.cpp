// Copyright Corvane. MIT License.
#include "Layout/Visibility.h"

const EVisibility EVisibility::Visible(VisibleBit | SelfHitBit | ChildrenHitBit);
const EVisibility EVisibility::Collapsed(CollapsedBit);
const EVisibility EVisibility::Hidden(HiddenBit);
const EVisibility EVisibility::HitTestInvisible(VisibleBit);
const EVisibility EVisibility::SelfHitTestInvisible(VisibleBit | ChildrenHitBit);
const EVisibility EVisibility::All(VisibleBit | CollapsedBit | HiddenBit | SelfHitBit | ChildrenHitBit);
