// Copyright The Tintmill authors. All rights reserved.

#include "Containers/Ticker.h"

FTicker::FTicker()
	: CurrentTime(0.0)
{}

FTicker& FTicker::GetCoreTicker()
{
	static FTicker Ticker;
	return Ticker;
}

FDelegateHandle FTicker::AddTicker(const FTickerDelegate& InDelegate, float InDelay)
{
	FElement Element;
	Element.Handle = FDelegateHandle(FDelegateHandle::GenerateNewHandle);
	Element.Delegate = InDelegate;
	Element.FireTime = CurrentTime + InDelay;
	Element.Delay = InDelay;
	Elements.Add(Element);
	return Element.Handle;
}

FDelegateHandle FTicker::AddTicker(const TCHAR*, float InDelay, TFunction<bool(float)> Function)
{
	return AddTicker(FTickerDelegate::CreateLambda([Function](float DeltaTime) { return Function(DeltaTime); }), InDelay);
}

void FTicker::RemoveTicker(FDelegateHandle Handle)
{
	Elements.RemoveAll([Handle](const FElement& Element) { return Element.Handle == Handle; });
}

void FTicker::Tick(float DeltaTime)
{
	CurrentTime += DeltaTime;
	TArray<FDelegateHandle> Due;
	for (const FElement& Element : Elements)
	{
		if (Element.FireTime <= CurrentTime)
		{
			Due.Add(Element.Handle);
		}
	}
	for (const FDelegateHandle& Handle : Due)
	{
		// Found anew each time, because a delegate may add and remove others.
		const auto HasHandle = [&Handle](const FElement& Element) { return Element.Handle == Handle; };
		const FElement* Element = Elements.FindByPredicate(HasHandle);
		if (!Element)
		{
			continue;
		}
		const FTickerDelegate Delegate = Element->Delegate;
		const bool bAgain = Delegate.IsBound() && Delegate.Execute(DeltaTime);
		FElement* Ran = Elements.FindByPredicate(HasHandle);
		if (Ran && bAgain)
		{
			Ran->FireTime = CurrentTime + Ran->Delay;
		}
		else if (Ran)
		{
			RemoveTicker(Handle);
		}
	}
}
