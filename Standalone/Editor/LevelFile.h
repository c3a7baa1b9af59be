// Copyright Corvane. MIT License.
#pragma once

#include <cstddef>
#include <functional>
#include <string>

/**
 * The open level as a file. Works on GEditor's level, on the assets in memory and on the viewports that show the level:
 * opening sets the view of each, saving takes that of the active one, or of the first.
 * All errors are one line, `file: place: reason`, with nothing changed: neither in the editor nor on the disk.
 */
class FLevelFile
{
public:
	/** A larger file is refused by its size, before it is read, and never written. */
	static constexpr size_t MaxSize = size_t(64) << 20U;

	/** Replaces level, assets, selection and view by what stands in the file. */
	static bool Open(const std::string& Path, std::string& OutError);

	/**
	 * Writes the file in one piece and clears every dirty flag.
	 * @param BeforeRename as for FFileAccess::Replace: a no leaves all as it was, and OutError empty.
	 */
	static bool Save(
		const std::string& Path, std::string& OutError, const std::function<bool()>& BeforeRename = nullptr);

	/** What Save would write; OutError is only `place: reason`. Saving what was opened gives this text again. */
	static bool ToText(std::string& OutText, std::string& OutError);
};
