// Copyright Corvane. MIT License.
#pragma once

#include "Framework/Commands/InputBindingManager.h"
#include "Framework/Commands/UICommandInfo.h"

/**
 * The base of a class that holds the commands of one context, one TSharedPtr<FUICommandInfo> each. There is one
 * instance at a time. The class is to be used within one module only: another would have an instance of its own.
 */
template <typename CommandContextType>
class TCommands : public FBindingContext
{
public:
	/** Makes the instance and its commands; does nothing while there is an instance. */
	static void Register()
	{
		if (!IsRegistered())
		{
			const TSharedRef<CommandContextType> NewInstance = MakeShared<CommandContextType>();
			Instance = NewInstance;
			NewInstance->RegisterCommands();
		}
	}
	/** Drops instance and commands; does nothing while there is no instance. */
	static void Unregister()
	{
		if (IsRegistered())
		{
			FInputBindingManager::Get().RemoveContextByName(Instance->GetContextName());
			Instance.Reset();
		}
	}
	static bool IsRegistered() { return Instance.IsValid(); }
	/** Fatal while there is no instance. */
	static const CommandContextType& Get()
	{
		checkf(IsRegistered(), TEXT("The commands are not registered"));
		return *Instance;
	}

protected:
	TCommands(
		const FName InContextName, const FText& InContextDesc, const FName InContextParent, const FName InStyleSetName)
		: FBindingContext(InContextName, InContextDesc, InContextParent, InStyleSetName)
	{}
	/** Makes the commands. To be overridden as a public function. */
	virtual void RegisterCommands() = 0;

private:
	static TSharedPtr<CommandContextType> Instance;
};

template <typename CommandContextType>
TSharedPtr<CommandContextType> TCommands<CommandContextType>::Instance;
