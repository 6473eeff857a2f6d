// Copyright The Tintmill authors. All rights reserved.

#include "Logging/LogCategory.h"

#include "Logging/LogSuppressionInterface.h"

FLogCategoryBase::FLogCategoryBase(
	const TCHAR* InCategoryName, ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity)
	: DefaultVerbosity(InDefaultVerbosity)
	, CompileTimeVerbosity(InCompileTimeVerbosity)
	, CategoryFName(InCategoryName)
{
	ResetFromDefault();
	if (CompileTimeVerbosity > ELogVerbosity::NoLogging)
	{
		FLogSuppressionInterface::Get().AssociateSuppress(this);
	}
}

FLogCategoryBase::~FLogCategoryBase()
{
	FLogSuppressionInterface::Get().DisassociateSuppress(this);
}

void FLogCategoryBase::SetVerbosity(ELogVerbosity::Type NewVerbosity)
{
	const uint8 Wanted = uint8(NewVerbosity & ELogVerbosity::VerbosityMask);
	Verbosity = Wanted < CompileTimeVerbosity ? Wanted : uint8(CompileTimeVerbosity);
}

void FLogCategoryBase::ResetFromDefault()
{
	SetVerbosity(ELogVerbosity::Type(DefaultVerbosity));
}
