// Copyright Corvane. MIT License.
#include "EditorView.h"

#include "ErrorText.h"

#include <dlfcn.h>
#include <filesystem>

std::unique_ptr<IEditorView> IEditorView::Make(EEditorViewUse Use, std::string& OutError)
{
	const std::filesystem::path Folder = std::filesystem::read_symlink("/proc/self/exe").parent_path();
	const std::string File = (Folder / "libEditorWindow.so").string();
	// Never closed: what the library's toolkit leaves behind runs until the process ends.
	void* Library = ::dlopen(File.c_str(), RTLD_NOW | RTLD_LOCAL);
	if (!Library)
	{
		const char* Reason = ::dlerror();
		OutError = FErrorText::ForFile(File, FErrorText::OneLine(Reason ? Reason : "can't be opened"));
		return nullptr;
	}
	const auto MakeView = reinterpret_cast<FMakeEditorView>(::dlsym(Library, "MakeEditorView"));
	if (!MakeView)
	{
		OutError = FErrorText::ForFile(File, "is no library of the editor's window");
		return nullptr;
	}
	return std::unique_ptr<IEditorView>(MakeView(Use, OutError));
}
