// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/ProjectLock.h"

#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
using namespace TintmillHost;

TEST(LinuxProjectLock, AProcessThatIsKilledBlocksNobody)
{
	const FTestFolder Folder;
	int Ready[2];
	ASSERT_EQ(pipe(Ready), 0);
	const pid_t Child = fork();
	if (Child == 0)
	{
		FProjectLock Lock;
		std::string Why;
		const char Taken = Lock.Take(Folder.NativePath(""), Why) == EProjectLock::Held ? 'y' : 'n';
		(void)!write(Ready[1], &Taken, 1);
		pause();
		_exit(0);
	}
	char Taken = 0;
	ASSERT_EQ(read(Ready[0], &Taken, 1), 1);
	ASSERT_EQ(Taken, 'y');
	std::string Why;
	EXPECT_EQ(FProjectLock().Take(Folder.NativePath(""), Why), EProjectLock::HeldByOther);
	kill(Child, SIGKILL);
	waitpid(Child, nullptr, 0);
	EXPECT_EQ(FProjectLock().Take(Folder.NativePath(""), Why), EProjectLock::Held);
	close(Ready[0]);
	close(Ready[1]);
}
}
