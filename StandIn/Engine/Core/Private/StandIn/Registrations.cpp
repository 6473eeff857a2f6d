// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/Registrations.h"

namespace StandIn
{
namespace
{
struct FRegistry
{
	FString Name;
	TFunction<void(TArray<FRegistration>&)> List;
};

/** Never destroyed: static objects add and ask until the end of the process. */
TArray<FRegistry>& GetRegistries()
{
	static TArray<FRegistry>* const Registries = new TArray<FRegistry>();
	return *Registries;
}
}

void AddRegistry(const TCHAR* Registry, TFunction<void(TArray<FRegistration>&)> List)
{
	RemoveRegistry(Registry);
	GetRegistries().Add(FRegistry{FString(Registry), MoveTemp(List)});
}

void RemoveRegistry(const TCHAR* Registry)
{
	const FString Name(Registry);
	GetRegistries().RemoveAll([&Name](const FRegistry& Candidate) { return Candidate.Name.Equals(Name); });
}

TArray<FRegistration> ListRegistrations()
{
	TArray<FRegistration> Registrations;
	for (const FRegistry& Registry : GetRegistries())
	{
		Registry.List(Registrations);
	}
	return Registrations;
}

void ListBindings(const TCHAR* Name, const FMulticastDelegateBase& Delegate, TArray<FRegistration>& OutRegistrations)
{
	for (const void* UserObject : Delegate.ListUserObjects())
	{
		OutRegistrations.Add(FRegistration{FString(TEXT("Delegates")), FString(Name), UserObject});
	}
}

void AddDelegate(const TCHAR* Name, const FMulticastDelegateBase& Delegate)
{
	const FString NameCopy(Name);
	AddRegistry(
		Name, [NameCopy, &Delegate](TArray<FRegistration>& OutRegistrations) { ListBindings(*NameCopy, Delegate, OutRegistrations); });
}
}
