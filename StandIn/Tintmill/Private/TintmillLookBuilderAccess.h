// Copyright The Tintmill authors. All rights reserved.

#pragma once

namespace StandIn
{
struct FLookBuilderRequest;
}

namespace TintmillLookBuilder
{
/** Hands a request to the present receiver. */
void Open(const StandIn::FLookBuilderRequest& Request);
}
