// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Array.h"
#include "Framework/Commands/UICommandInfo.h"

/** The commands of all contexts, kept alive until their context is removed. */
class SLATE_API FInputBindingManager
{
public:
	static FInputBindingManager& Get();

	/** Appends the contexts in the order in which they got their first command. */
	void GetKnownInputContexts(TArray<TSharedPtr<FBindingContext>>& OutInputContexts) const;
	/** Appends a context's commands in the order in which they were made; nothing for an unknown context. */
	void GetCommandInfosFromContext(
		const FName InBindingContext, TArray<TSharedPtr<FUICommandInfo>>& OutCommandInfos) const;
	/** Null for an unknown context or command. */
	const TSharedPtr<FUICommandInfo> FindCommandInContext(const FName InBindingContext, const FName CommandName) const;

	/** As FUICommandInfo::MakeCommandInfo, with the same fatal cases. */
	void CreateInputCommand(
		const TSharedRef<FBindingContext>& InBindingContext, TSharedRef<FUICommandInfo> InCommandInfo);
	/** Forgets the context and its commands; does nothing for an unknown one. */
	void RemoveContextByName(const FName& ContextName);

private:
	struct FContextEntry
	{
		TSharedRef<FBindingContext> Context;
		TArray<TSharedPtr<FUICommandInfo>> Commands;
	};

	const FContextEntry* FindEntry(const FName& ContextName) const;

	TArray<FContextEntry> Contexts;
};
