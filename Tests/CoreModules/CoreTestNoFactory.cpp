// Copyright Corvane. MIT License.

// A library without a factory of its own; the one that it is linked with has one, and a reflection of its own.
extern "C" int GetCoreTestNumber();

extern "C" __attribute__((visibility("default"))) int GetCoreTestNumberTwice()
{
	return 2 * GetCoreTestNumber();
}
