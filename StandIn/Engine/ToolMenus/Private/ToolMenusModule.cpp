// Copyright The Tintmill authors. All rights reserved.

#include "Modules/ModuleInterface.h"
#include "Modules/ModuleManager.h"
#include "StandIn/ModuleHooks.h"
#include "ToolMenus.h"

/** Module of the tool menus; the manager is there while the module is loaded. */
class FToolMenusModule : public IModuleInterface
{
public:
	virtual void StartupModule() override
	{
		UToolMenus::AddToRegistrations();
		UnloadingHandle = StandIn::OnModuleBinaryUnloading().AddStatic(&UToolMenus::OnModuleBinaryUnloading);
	}

	virtual void ShutdownModule() override { StandIn::OnModuleBinaryUnloading().Remove(UnloadingHandle); }

private:
	FDelegateHandle UnloadingHandle;
};

IMPLEMENT_MODULE(FToolMenusModule, ToolMenus)
