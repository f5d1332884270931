#ifndef CHARTXML_EXPORT_H
#define CHARTXML_EXPORT_H

/* Marks what the library shows; all else is hidden. */
#if defined(__GNUC__)
#define CHARTXML_API __attribute__((visibility("default")))
#else
#define CHARTXML_API
#endif

#endif
