// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxExtender.h"
#include "Templates/Casts.h"
#include "UObject/Object.h"
#include "ToolMenuContext.generated.h"

// What a menu is opened on: objects, command lists, extenders. The structure is not reflected; the manager keeps the objects
// of live menus from being collected. No clean-up callbacks.

/** Base of objects made to be the context of a menu; any other object may be one too. */
UCLASS(Abstract)
class TOOLMENUS_API UToolMenuContextBase : public UObject
{
	GENERATED_BODY()
};

/** Objects, commands and extenders that a menu is generated with. */
struct TOOLMENUS_API FToolMenuContext
{
	/** Makes an empty context. */
	FToolMenuContext() {}

	/** Makes a context of one object; null is ignored. */
	FToolMenuContext(UObject* InContext);

	/** Makes a context of a command list, an extender and an object, each of which may be null. */
	FToolMenuContext(
		TSharedPtr<FUICommandList> InCommandList, TSharedPtr<FExtender> InExtender = TSharedPtr<FExtender>(), UObject* InContext = nullptr);

	/** The first context object of a class, or null. */
	template <typename ContextType>
	ContextType* FindContext() const
	{
		for (UObject* Object : ContextObjects)
		{
			if (ContextType* Result = Cast<ContextType>(Object))
			{
				return Result;
			}
		}
		return nullptr;
	}

	/** The first context object of a class, or null. */
	UObject* FindByClass(UClass* InClass) const;

	/** Adds a command list; it is asked after those added before. */
	void AppendCommandList(const TSharedRef<FUICommandList>& InCommandList);

	/** Adds a command list; null is ignored. */
	void AppendCommandList(const TSharedPtr<FUICommandList>& InCommandList);

	/** The action of a command in the first list that maps it, or null; OutCommandList is that list. */
	const FUIAction* GetActionForCommand(TSharedPtr<const FUICommandInfo> Command, TSharedPtr<const FUICommandList>& OutCommandList) const;

	/** Adds an extender. */
	void AddExtender(const TSharedPtr<FExtender>& InExtender) { Extenders.AddUnique(InExtender); }

	/** All extenders made into one; may be null. */
	TSharedPtr<FExtender> GetAllExtenders() const { return FExtender::Combine(Extenders); }

	/** Removes all extenders. */
	void ResetExtenders() { Extenders.Reset(); }

	/** Adds an object; null is ignored. */
	void AddObject(UObject* InObject);

	/** Adds objects. */
	void AppendObjects(const TArray<UObject*>& InObjects);

private:
	friend class UToolMenus;

	TArray<TSharedPtr<FUICommandList>> CommandLists;
	TArray<TSharedPtr<FExtender>> Extenders;
	TArray<UObject*> ContextObjects;
};
