// Copyright Corvane. MIT License.
#pragma once

#include "CoreTypes.h"

struct FHitResult;

/** What a world is for. */
namespace EWorldType
{
	enum Type
	{
		None,
		/** The level that is open in the editor. */
		Editor,
		/** A world that a tool of the editor shows. */
		EditorPreview,
	};
}

/** What happens to an object's physics when it is moved. Nothing here has physics: all ways are the same. */
enum class ETeleportType : uint8
{
	None,
	TeleportPhysics,
	ResetPhysics,
};
