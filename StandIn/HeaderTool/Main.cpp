// Copyright The Tintmill authors. All rights reserved.
#include "Tool.h"

#include <iostream>

int main(int Count, char** Arguments)
{
	if (Count != 2)
	{
		std::cerr << "Usage: HeaderTool <manifest>\n";
		return 2;
	}
	return HeaderTool::Run(Arguments[1], std::cout, std::cerr);
}
