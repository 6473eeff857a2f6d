// Copyright The Tintmill authors. All rights reserved.

#include "Host/Commands/Labels.h"

#include "Host/Console/Console.h"
#include "Host/Ui/Person.h"

namespace TintmillHost
{
namespace
{
/** The labels of a path "View > Tintmill". */
std::vector<std::string> SplitPath(const std::string& Path)
{
	std::vector<std::string> Labels;
	size_t Start = 0;
	for (size_t Mark = Path.find(" > "); Mark != std::string::npos; Mark = Path.find(" > ", Start))
	{
		Labels.push_back(Path.substr(Start, Mark - Start));
		Start = Mark + 3;
	}
	Labels.push_back(Path.substr(Start));
	return Labels;
}

/** What a label names; an asset that its list has to be scrolled for is brought into sight. */
FSeen Find(FPerson& Person, const std::string& Label)
{
	FSeen Thing = FindOrComplain(LookAround(), Label);
	if (Thing.ScrollRows != 0)
	{
		Person.Hover(Thing.ListCenter);
		Person.TurnWheel(static_cast<float>(-Thing.ScrollRows));
		Thing = FindOrComplain(LookAround(), Label);
	}
	return Thing;
}
}

std::string JoinWords(const std::vector<std::string>& Words)
{
	return JoinWordsFrom(Words, 0);
}

std::string JoinWordsFrom(const std::vector<std::string>& Words, size_t Index)
{
	std::string Text;
	for (size_t At = Index; At < Words.size(); ++At)
	{
		Text += (At > Index ? " " : "") + Words[At];
	}
	return Text;
}

FSeen FindOrComplain(const std::vector<FSeen>& Things, const std::string& Label)
{
	const FSeen* const Thing = FindSeen(Things, Label);
	if (Thing == nullptr)
	{
		throw FCommandError("Nothing in sight is labeled '" + Label + "'; there is " + NameLabels(Things) + ".");
	}
	return *Thing;
}

FSeen FollowPath(FPerson& Person, const std::string& Path)
{
	const std::vector<std::string> Labels = SplitPath(Path);
	for (size_t Index = 0; Index + 1 < Labels.size(); ++Index)
	{
		Person.Hover(Find(Person, Labels[Index]).Center);
	}
	return Find(Person, Labels.back());
}

void CheckEnabled(const FSeen& Thing)
{
	if (!Thing.bEnabled)
	{
		throw FCommandError("'" + Thing.Label + "' cannot be clicked now: it is grayed out.");
	}
}
}
