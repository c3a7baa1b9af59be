// Copyright Corvane. MIT License.
#include "Framework/Commands/InputBindingManager.h"

FInputBindingManager& FInputBindingManager::Get()
{
	static FInputBindingManager Instance;
	return Instance;
}

void FInputBindingManager::GetKnownInputContexts(TArray<TSharedPtr<FBindingContext>>& OutInputContexts) const
{
	for (const FContextEntry& Entry : Contexts)
	{
		OutInputContexts.Add(Entry.Context);
	}
}

void FInputBindingManager::GetCommandInfosFromContext(
	const FName InBindingContext, TArray<TSharedPtr<FUICommandInfo>>& OutCommandInfos) const
{
	if (const FContextEntry* Entry = FindEntry(InBindingContext))
	{
		OutCommandInfos.Append(Entry->Commands);
	}
}

const TSharedPtr<FUICommandInfo> FInputBindingManager::FindCommandInContext(
	const FName InBindingContext, const FName CommandName) const
{
	const FContextEntry* Entry = FindEntry(InBindingContext);
	const TSharedPtr<FUICommandInfo>* Found = Entry == nullptr
		? nullptr
		: Entry->Commands.FindByPredicate([&CommandName](const TSharedPtr<FUICommandInfo>& Command)
			  { return Command->GetCommandName() == CommandName; });
	return Found ? *Found : nullptr;
}

void FInputBindingManager::CreateInputCommand(
	const TSharedRef<FBindingContext>& InBindingContext, TSharedRef<FUICommandInfo> InCommandInfo)
{
	const FName& ContextName = InBindingContext->GetContextName();
	const FName CommandName = InCommandInfo->GetCommandName();
	checkf(!FindCommandInContext(ContextName, CommandName).IsValid(), TEXT("Command '%s' of context '%s' exists"),
		*CommandName.ToString(), *ContextName.ToString());
	FContextEntry* Entry = const_cast<FContextEntry*>(FindEntry(ContextName));
	if (Entry == nullptr)
	{
		Contexts.Add(FContextEntry{InBindingContext, {}});
		Entry = &Contexts.Last();
	}
	checkf(Entry->Context == InBindingContext, TEXT("There are two command contexts '%s'"), *ContextName.ToString());
	Entry->Commands.Add(InCommandInfo);
}

void FInputBindingManager::RemoveContextByName(const FName& ContextName)
{
	Contexts.RemoveAll(
		[&ContextName](const FContextEntry& Entry) { return Entry.Context->GetContextName() == ContextName; });
}

const FInputBindingManager::FContextEntry* FInputBindingManager::FindEntry(const FName& ContextName) const
{
	return Contexts.FindByPredicate(
		[&ContextName](const FContextEntry& Entry) { return Entry.Context->GetContextName() == ContextName; });
}
