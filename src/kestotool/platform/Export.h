#pragma once

// KESTO_API marks what libKestoTool.so exports to its hosts: classes and functions a host calls,
// derives from or implements. Everything else, including the internals of the libraries linked
// into it, is built with hidden visibility and stays inside.
#if defined(__GNUC__)
#define KESTO_API __attribute__((visibility("default")))
#else
#define KESTO_API
#endif
