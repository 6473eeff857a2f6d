// Copyright The Tintmill authors. All rights reserved.

#include "Support/ProgramRun.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

FRunningProgram::FRunningProgram(const std::filesystem::path& Program, const std::vector<std::string>& Arguments)
{
	// Closed on exec, so that no program started meanwhile keeps an end open.
	int ToProgram[2];
	int FromProgram[2];
	if (pipe2(ToProgram, O_CLOEXEC) != 0)
	{
		return;
	}
	if (pipe2(FromProgram, O_CLOEXEC) != 0)
	{
		close(ToProgram[0]);
		close(ToProgram[1]);
		return;
	}
	std::vector<std::string> Words{Program.string()};
	Words.insert(Words.end(), Arguments.begin(), Arguments.end());
	std::vector<char*> Pointers;
	for (std::string& Word : Words)
	{
		Pointers.push_back(Word.data());
	}
	Pointers.push_back(nullptr);

	posix_spawn_file_actions_t Actions;
	posix_spawn_file_actions_init(&Actions);
	posix_spawn_file_actions_adddup2(&Actions, ToProgram[0], STDIN_FILENO);
	posix_spawn_file_actions_adddup2(&Actions, FromProgram[1], STDOUT_FILENO);
	posix_spawn_file_actions_adddup2(&Actions, FromProgram[1], STDERR_FILENO);
	pid_t Id = -1;
	if (posix_spawn(&Id, Words[0].c_str(), &Actions, nullptr, Pointers.data(), environ) == 0)
	{
		Process = Id;
	}
	posix_spawn_file_actions_destroy(&Actions);
	close(ToProgram[0]);
	close(FromProgram[1]);
	Input = ToProgram[1];
	Output = FromProgram[0];
}

void FRunningProgram::CloseInput()
{
	if (Input != -1)
	{
		close(static_cast<int>(Input));
		Input = -1;
	}
}

bool FRunningProgram::ReadSome()
{
	if (Output == -1)
	{
		return false;
	}
	char Buffer[4096];
	const ssize_t Count = read(static_cast<int>(Output), Buffer, sizeof(Buffer));
	if (Count <= 0)
	{
		close(static_cast<int>(Output));
		Output = -1;
		return false;
	}
	Printed.append(Buffer, static_cast<size_t>(Count));
	return true;
}

int FRunningProgram::WaitForCode()
{
	int Status = 0;
	if (waitpid(static_cast<pid_t>(Process), &Status, 0) < 0)
	{
		return -1;
	}
	return WIFEXITED(Status) ? WEXITSTATUS(Status) : 128 + WTERMSIG(Status);
}
