// Copyright The Tintmill authors. All rights reserved.

#include "Application/SlateApplicationBase.h"

TSharedPtr<FSlateApplicationBase> FSlateApplicationBase::CurrentBaseApplication;

FSlateApplicationBase::FSlateApplicationBase()
	: Renderer(MakeShareable(new FSlateRenderer()))
{}

FSlateApplicationBase& FSlateApplicationBase::Get()
{
	check(IsInitialized());
	return *CurrentBaseApplication;
}
