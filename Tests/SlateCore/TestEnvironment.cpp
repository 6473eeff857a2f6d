// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/ObjectSystem.h"
#include "gtest/gtest.h"

namespace
{
// Icons are looked up by class.
class FObjectSystemEnvironment : public testing::Environment
{
public:
	virtual void SetUp() override { StandIn::StartObjectSystem(); }
	virtual void TearDown() override { StandIn::ShutdownObjectSystem(); }
};

testing::Environment* const GObjectSystemEnvironment = testing::AddGlobalTestEnvironment(new FObjectSystemEnvironment);
}
