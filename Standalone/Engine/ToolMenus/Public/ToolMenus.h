// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "ToolMenu.h"

#include "ToolMenus.generated.h"

/** All menus, extended by name before or after whoever shows them exists. */
UCLASS()
class TOOLMENUS_API UToolMenus : public UObject
{
	GENERATED_BODY()

public:
	/** Made at the first call, and kept until FToolMenusStartup::ShutDown. */
	static UToolMenus* Get();

	/**
	 * Runs the delegate once when menus can be extended: at once if they already can, else later.
	 * @return names what waits; not valid if the delegate was run.
	 */
	static FDelegateHandle RegisterStartupCallback(const FSimpleMulticastDelegate::FDelegate& InDelegate);
	/** What waits and is bound to the object will not be run. */
	static void UnRegisterStartupCallback(const void* UserPointer);
	static void UnRegisterStartupCallback(FDelegateHandle InHandle);

	/** Removes every entry of the owner from all menus. Makes nothing: does nothing if there are no menus at all. */
	static void UnregisterOwner(FToolMenuOwner Owner);

	/** The menu of that name, made if there is none. Never null. */
	UToolMenu* ExtendMenu(const FName Name);
	/** Null if nobody extended it. */
	UToolMenu* FindMenu(const FName Name);

	/** New entries are the current owner's: the last one that was pushed and not yet popped. */
	FToolMenuOwner CurrentOwner() const;
	void PushOwner(const FToolMenuOwner InOwner);
	/** Fatal if the current owner is another one. */
	void PopOwner(const FToolMenuOwner InOwner);

private:
	friend class FToolMenusStartup;

	UPROPERTY()
	TArray<UToolMenu*> Menus;

	TArray<FToolMenuOwner> OwnerStack;
};

/** Makes somebody the current owner for a scope. */
struct TOOLMENUS_API FToolMenuOwnerScoped
{
	FToolMenuOwnerScoped(const FToolMenuOwner InOwner);
	~FToolMenuOwnerScoped();
	FToolMenuOwnerScoped(const FToolMenuOwnerScoped&) = delete;
	FToolMenuOwnerScoped& operator=(const FToolMenuOwnerScoped&) = delete;

private:
	FToolMenuOwner Owner;
};
