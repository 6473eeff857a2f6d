// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/Notices.h"

#include "Logging/LogMacros.h"

DEFINE_LOG_CATEGORY_STATIC(LogNotice, Log, All);

namespace StandIn
{
namespace
{
struct FNoticeState
{
	TArray<FNotice> Notices;
	FOnNotice OnNotice;
};

FNoticeState& NoticeState()
{
	static FNoticeState* const State = new FNoticeState();
	return *State;
}
}

void AddNotice(const FString& Key, const FString& Text, ENoticeKind Kind)
{
	FNoticeState& State = NoticeState();
	if (State.Notices.ContainsByPredicate([&Key](const FNotice& Notice) { return Notice.Key.Equals(Key); }))
	{
		return;
	}
	FNotice Notice;
	Notice.Key = Key;
	Notice.Text = Text;
	Notice.Kind = Kind;
	State.Notices.Add(Notice);
	if (Kind == ENoticeKind::Error)
	{
		UE_LOG(LogNotice, Error, TEXT("%s"), *Text);
	}
	else
	{
		UE_LOG(LogNotice, Warning, TEXT("%s"), *Text);
	}
	State.OnNotice.Broadcast(Notice);
}

const TArray<FNotice>& GetNotices()
{
	return NoticeState().Notices;
}

void ClearNotice(const FString& Key)
{
	NoticeState().Notices.RemoveAll([&Key](const FNotice& Notice) { return Notice.Key.Equals(Key); });
}

void ClearNotices()
{
	NoticeState().Notices.Empty();
}

FOnNotice& OnNotice()
{
	return NoticeState().OnNotice;
}
}
