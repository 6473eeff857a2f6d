// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Delegates/DelegateSignatureImpl.inl"

// The DECLARE_ macros. Dynamic delegates are left out: the header tool refuses them.

#define FUNC_DECLARE_DELEGATE(DelegateName, ReturnType, ...) typedef TDelegate<ReturnType(__VA_ARGS__)> DelegateName;
#define FUNC_DECLARE_MULTICAST_DELEGATE(MulticastDelegateName, ReturnType, ...) \
	typedef TMulticastDelegate<ReturnType(__VA_ARGS__)> MulticastDelegateName;
#define FUNC_DECLARE_EVENT(OwningType, EventName, ReturnType, ...) \
	class EventName : public TMulticastDelegate<ReturnType(__VA_ARGS__)> \
	{ \
		friend class OwningType; \
	};

#define DECLARE_DELEGATE(Name) FUNC_DECLARE_DELEGATE(Name, void)
#define DECLARE_MULTICAST_DELEGATE(Name) FUNC_DECLARE_MULTICAST_DELEGATE(Name, void)
#define DECLARE_EVENT(OwningType, Name) FUNC_DECLARE_EVENT(OwningType, Name, void)
#define DECLARE_DELEGATE_RetVal(RetVal, Name) FUNC_DECLARE_DELEGATE(Name, RetVal)
#define DECLARE_DERIVED_EVENT(OwningType, BaseTypeEvent, Name) \
	class Name : public BaseTypeEvent \
	{ \
		friend class OwningType; \
	};

#define DECLARE_DELEGATE_OneParam(Name, Param1Type) FUNC_DECLARE_DELEGATE(Name, void, Param1Type)
#define DECLARE_MULTICAST_DELEGATE_OneParam(Name, Param1Type) FUNC_DECLARE_MULTICAST_DELEGATE(Name, void, Param1Type)
#define DECLARE_EVENT_OneParam(OwningType, Name, Param1Type) FUNC_DECLARE_EVENT(OwningType, Name, void, Param1Type)
#define DECLARE_DELEGATE_RetVal_OneParam(RetVal, Name, Param1Type) FUNC_DECLARE_DELEGATE(Name, RetVal, Param1Type)

#define DECLARE_DELEGATE_TwoParams(Name, Param1Type, Param2Type) FUNC_DECLARE_DELEGATE(Name, void, Param1Type, Param2Type)
#define DECLARE_MULTICAST_DELEGATE_TwoParams(Name, Param1Type, Param2Type) \
	FUNC_DECLARE_MULTICAST_DELEGATE(Name, void, Param1Type, Param2Type)
#define DECLARE_EVENT_TwoParams(OwningType, Name, Param1Type, Param2Type) FUNC_DECLARE_EVENT(OwningType, Name, void, Param1Type, Param2Type)
#define DECLARE_DELEGATE_RetVal_TwoParams(RetVal, Name, Param1Type, Param2Type) FUNC_DECLARE_DELEGATE(Name, RetVal, Param1Type, Param2Type)

#define DECLARE_DELEGATE_ThreeParams(Name, Param1Type, Param2Type, Param3Type) \
	FUNC_DECLARE_DELEGATE(Name, void, Param1Type, Param2Type, Param3Type)
#define DECLARE_MULTICAST_DELEGATE_ThreeParams(Name, Param1Type, Param2Type, Param3Type) \
	FUNC_DECLARE_MULTICAST_DELEGATE(Name, void, Param1Type, Param2Type, Param3Type)
#define DECLARE_EVENT_ThreeParams(OwningType, Name, Param1Type, Param2Type, Param3Type) \
	FUNC_DECLARE_EVENT(OwningType, Name, void, Param1Type, Param2Type, Param3Type)
#define DECLARE_DELEGATE_RetVal_ThreeParams(RetVal, Name, Param1Type, Param2Type, Param3Type) \
	FUNC_DECLARE_DELEGATE(Name, RetVal, Param1Type, Param2Type, Param3Type)

#define DECLARE_DELEGATE_FourParams(Name, Param1Type, Param2Type, Param3Type, Param4Type) \
	FUNC_DECLARE_DELEGATE(Name, void, Param1Type, Param2Type, Param3Type, Param4Type)
#define DECLARE_MULTICAST_DELEGATE_FourParams(Name, Param1Type, Param2Type, Param3Type, Param4Type) \
	FUNC_DECLARE_MULTICAST_DELEGATE(Name, void, Param1Type, Param2Type, Param3Type, Param4Type)
#define DECLARE_EVENT_FourParams(OwningType, Name, Param1Type, Param2Type, Param3Type, Param4Type) \
	FUNC_DECLARE_EVENT(OwningType, Name, void, Param1Type, Param2Type, Param3Type, Param4Type)
#define DECLARE_DELEGATE_RetVal_FourParams(RetVal, Name, Param1Type, Param2Type, Param3Type, Param4Type) \
	FUNC_DECLARE_DELEGATE(Name, RetVal, Param1Type, Param2Type, Param3Type, Param4Type)

#define DECLARE_DELEGATE_FiveParams(Name, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type) \
	FUNC_DECLARE_DELEGATE(Name, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type)
#define DECLARE_MULTICAST_DELEGATE_FiveParams(Name, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type) \
	FUNC_DECLARE_MULTICAST_DELEGATE(Name, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type)
#define DECLARE_EVENT_FiveParams(OwningType, Name, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type) \
	FUNC_DECLARE_EVENT(OwningType, Name, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type)
#define DECLARE_DELEGATE_RetVal_FiveParams(RetVal, Name, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type) \
	FUNC_DECLARE_DELEGATE(Name, RetVal, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type)

#define DECLARE_DELEGATE_SixParams(Name, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type) \
	FUNC_DECLARE_DELEGATE(Name, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type)
#define DECLARE_MULTICAST_DELEGATE_SixParams(Name, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type) \
	FUNC_DECLARE_MULTICAST_DELEGATE(Name, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type)
#define DECLARE_EVENT_SixParams(OwningType, Name, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type) \
	FUNC_DECLARE_EVENT(OwningType, Name, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type)
#define DECLARE_DELEGATE_RetVal_SixParams(RetVal, Name, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type) \
	FUNC_DECLARE_DELEGATE(Name, RetVal, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type)

#define DECLARE_DELEGATE_SevenParams(Name, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type) \
	FUNC_DECLARE_DELEGATE(Name, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type)
#define DECLARE_MULTICAST_DELEGATE_SevenParams(Name, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type) \
	FUNC_DECLARE_MULTICAST_DELEGATE(Name, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type)
#define DECLARE_EVENT_SevenParams(OwningType, Name, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type) \
	FUNC_DECLARE_EVENT(OwningType, Name, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type)
#define DECLARE_DELEGATE_RetVal_SevenParams( \
	RetVal, Name, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type) \
	FUNC_DECLARE_DELEGATE(Name, RetVal, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type)

#define DECLARE_DELEGATE_EightParams(Name, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type) \
	FUNC_DECLARE_DELEGATE(Name, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type)
#define DECLARE_MULTICAST_DELEGATE_EightParams( \
	Name, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type) \
	FUNC_DECLARE_MULTICAST_DELEGATE( \
		Name, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type)
#define DECLARE_EVENT_EightParams( \
	OwningType, Name, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type) \
	FUNC_DECLARE_EVENT( \
		OwningType, Name, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type)
#define DECLARE_DELEGATE_RetVal_EightParams( \
	RetVal, Name, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type) \
	FUNC_DECLARE_DELEGATE(Name, RetVal, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type)

#define DECLARE_DELEGATE_NineParams( \
	Name, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type, Param9Type) \
	FUNC_DECLARE_DELEGATE( \
		Name, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type, Param9Type)
#define DECLARE_MULTICAST_DELEGATE_NineParams( \
	Name, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type, Param9Type) \
	FUNC_DECLARE_MULTICAST_DELEGATE( \
		Name, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type, Param9Type)
#define DECLARE_EVENT_NineParams( \
	OwningType, Name, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type, Param9Type) \
	FUNC_DECLARE_EVENT(OwningType, Name, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, \
		Param8Type, Param9Type)
#define DECLARE_DELEGATE_RetVal_NineParams( \
	RetVal, Name, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type, Param9Type) \
	FUNC_DECLARE_DELEGATE( \
		Name, RetVal, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type, Param9Type)
