#ifndef HOST_EXPORT_H
#define HOST_EXPORT_H

/* Marks what the library shows of the host; all else is hidden. */
#if defined(__GNUC__)
#define KORVA_API __attribute__((visibility("default")))
#else
#define KORVA_API
#endif

#endif
