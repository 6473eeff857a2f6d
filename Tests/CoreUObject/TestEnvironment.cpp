// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/ObjectSystem.h"
#include "gtest/gtest.h"

namespace
{
// The object system runs for all tests of the program; those that tear it down start it again.
class FObjectSystemEnvironment : public testing::Environment
{
public:
	virtual void SetUp() override { StandIn::StartObjectSystem(); }
	virtual void TearDown() override { StandIn::ShutdownObjectSystem(); }
};

testing::Environment* const GObjectSystemEnvironment = testing::AddGlobalTestEnvironment(new FObjectSystemEnvironment);
}
