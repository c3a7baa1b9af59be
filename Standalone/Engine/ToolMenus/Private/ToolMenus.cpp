// Copyright Corvane. MIT License.
#include "ToolMenus.h"

#include "Standalone/ToolMenusStartup.h"
#include "UObject/Class.h"

namespace
{
	/** What waits for the menus. */
	struct FStartupCallback
	{
		FDelegateHandle Handle;
		FSimpleDelegate Delegate;
	};

	UToolMenus* Singleton = nullptr;
	bool bMenusCanBeExtended = false;

	TArray<FStartupCallback>& GetStartupCallbacks()
	{
		static TArray<FStartupCallback> Callbacks;
		return Callbacks;
	}
}

UToolMenus* UToolMenus::Get()
{
	if (!Singleton)
	{
		Singleton = NewObject<UToolMenus>();
		Singleton->AddToRoot();
	}
	return Singleton;
}

FDelegateHandle UToolMenus::RegisterStartupCallback(const FSimpleMulticastDelegate::FDelegate& InDelegate)
{
	if (bMenusCanBeExtended)
	{
		// There is no second start that it could wait for.
		InDelegate.ExecuteIfBound();
		return FDelegateHandle();
	}
	const FStartupCallback Callback{FDelegateHandle::GenerateNewHandle(), InDelegate};
	GetStartupCallbacks().Add(Callback);
	return Callback.Handle;
}

void UToolMenus::UnRegisterStartupCallback(const void* UserPointer)
{
	GetStartupCallbacks().RemoveAll(
		[UserPointer](const FStartupCallback& Callback) { return Callback.Delegate.IsBoundToObject(UserPointer); });
}

void UToolMenus::UnRegisterStartupCallback(FDelegateHandle InHandle)
{
	GetStartupCallbacks().RemoveAll(
		[InHandle](const FStartupCallback& Callback) { return Callback.Handle == InHandle; });
}

void UToolMenus::UnregisterOwner(FToolMenuOwner Owner)
{
	// What nobody owns stays: nobody can mean it.
	if (!Singleton || !Owner.IsSet())
	{
		return;
	}
	for (UToolMenu* Menu : Singleton->Menus)
	{
		for (FToolMenuSection& Section : Menu->Sections)
		{
			Section.Blocks.RemoveAll([&Owner](const FToolMenuEntry& Entry) { return Entry.Owner == Owner; });
		}
	}
}

UToolMenu* UToolMenus::ExtendMenu(const FName Name)
{
	UToolMenu* Menu = FindMenu(Name);
	if (!Menu)
	{
		Menu = NewObject<UToolMenu>(this);
		Menu->MenuName = Name;
		Menus.Add(Menu);
	}
	return Menu;
}

UToolMenu* UToolMenus::FindMenu(const FName Name)
{
	UToolMenu* const* Found = Menus.FindByPredicate([&Name](const UToolMenu* Menu) { return Menu->MenuName == Name; });
	return Found ? *Found : nullptr;
}

FToolMenuOwner UToolMenus::CurrentOwner() const
{
	return OwnerStack.Num() > 0 ? OwnerStack.Last() : FToolMenuOwner();
}

void UToolMenus::PushOwner(const FToolMenuOwner InOwner)
{
	OwnerStack.Add(InOwner);
}

void UToolMenus::PopOwner(const FToolMenuOwner InOwner)
{
	check(OwnerStack.Num() > 0 && CurrentOwner() == InOwner);
	OwnerStack.RemoveAt(OwnerStack.Num() - 1);
}

FToolMenuOwnerScoped::FToolMenuOwnerScoped(const FToolMenuOwner InOwner) : Owner(InOwner)
{
	UToolMenus::Get()->PushOwner(Owner);
}

FToolMenuOwnerScoped::~FToolMenuOwnerScoped()
{
	// The menus may have gone within the scope.
	if (Singleton)
	{
		Singleton->PopOwner(Owner);
	}
}

void FToolMenusStartup::Run()
{
	check(!bMenusCanBeExtended);
	bMenusCanBeExtended = true;
	// Taken off one by one, since a callback may unregister others.
	while (GetStartupCallbacks().Num() > 0)
	{
		const FSimpleDelegate Callback = GetStartupCallbacks().Last().Delegate;
		GetStartupCallbacks().RemoveAt(GetStartupCallbacks().Num() - 1);
		Callback.ExecuteIfBound();
	}
}

void FToolMenusStartup::ShutDown()
{
	bMenusCanBeExtended = false;
	GetStartupCallbacks().Empty();
	if (Singleton)
	{
		Singleton->RemoveFromRoot();
		Singleton = nullptr;
	}
}

int32 FToolMenusStartup::GetStartupCallbackCount()
{
	return GetStartupCallbacks().Num();
}

int32 FToolMenusStartup::GetOwnerCount(const FToolMenuOwner& Apart)
{
	TArray<FToolMenuOwner> Owners;
	for (const UToolMenu* Menu : Singleton ? Singleton->Menus : TArray<UToolMenu*>())
	{
		for (const FToolMenuSection& Section : Menu->Sections)
		{
			for (const FToolMenuEntry& Entry : Section.Blocks)
			{
				if (Entry.Owner.IsSet() && Entry.Owner != Apart)
				{
					Owners.AddUnique(Entry.Owner);
				}
			}
		}
	}
	return Owners.Num();
}
