/* Marks what the shared library exports; everything else is hidden. Readable by C and C++. */
#ifndef XTTML_RUNTIME_EXPORT_H
#define XTTML_RUNTIME_EXPORT_H

/** Exported by the library. */
#define XTTML_API __attribute__((visibility("default")))

#endif
