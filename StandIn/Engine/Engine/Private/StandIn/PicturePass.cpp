// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/PicturePass.h"

#include "StandIn/Registrations.h"

namespace
{
/** The registered passes, with a number for each change of the list. */
struct FPassRegistry
{
	TArray<StandIn::IPicturePass*> Passes;
	uint64 Changes = 1;

	FPassRegistry()
	{
		StandIn::AddRegistry(TEXT("PicturePasses"), [this](TArray<StandIn::FRegistration>& OutRegistrations) {
			for (StandIn::IPicturePass* Pass : Passes)
			{
				OutRegistrations.Add(StandIn::FRegistration{FString(TEXT("PicturePasses")), Pass->GetName().ToString(), Pass});
			}
		});
	}
};

FPassRegistry& GetPassRegistry()
{
	// Never destroyed: modules may still remove passes while the process ends.
	static FPassRegistry* Registry = new FPassRegistry();
	return *Registry;
}

/** Folds one more number into a key. */
uint64 CombineKeys(uint64 Key, uint64 More)
{
	return (Key ^ More) * 1099511628211ull;
}
}

uint64 StandIn::IPicturePass::GetStateKey(FViewportClient*) const
{
	return 0;
}

void StandIn::RegisterPicturePass(IPicturePass* Pass)
{
	FPassRegistry& Registry = GetPassRegistry();
	check(Pass != nullptr && !Registry.Passes.Contains(Pass));
	Registry.Passes.Add(Pass);
	++Registry.Changes;
}

void StandIn::UnregisterPicturePass(IPicturePass* Pass)
{
	FPassRegistry& Registry = GetPassRegistry();
	if (Registry.Passes.Remove(Pass) > 0)
	{
		++Registry.Changes;
	}
}

const TArray<StandIn::IPicturePass*>& StandIn::GetPicturePasses()
{
	return GetPassRegistry().Passes;
}

void StandIn::ApplyPicturePasses(FViewportClient* Client, const FIntPoint& Size, FColor* Pixels)
{
	const TArray<IPicturePass*> Passes = GetPassRegistry().Passes;
	for (IPicturePass* Pass : Passes)
	{
		Pass->Apply(Client, Size, Pixels);
	}
}

uint64 StandIn::GetPicturePassKey(FViewportClient* Client)
{
	const FPassRegistry& Registry = GetPassRegistry();
	uint64 Key = CombineKeys(14695981039346656037ull, Registry.Changes);
	for (const IPicturePass* Pass : Registry.Passes)
	{
		const uint64 PassKey = Pass->GetStateKey(Client);
		if (PassKey == 0)
		{
			return 0;
		}
		Key = CombineKeys(Key, PassKey);
	}
	return Key == 0 ? 1 : Key;
}
