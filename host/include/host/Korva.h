#ifndef HOST_KORVA_H
#define HOST_KORVA_H

/* The host's own calls for procedures, in C and for Fortran's module korva.
 *
 * Every argument is passed by address, integers in 64 bits; a text is its first
 * character and its length in bytes. Results: 0 or more on success, -1 on
 * failure, and the reason is in the error log (korva_geterror_); a null address
 * is such a failure, a negative length is an empty text. A data set is named by
 * its dictionary, the address of a KORVA_FortranDictionary that korva_open_ fills
 * in; passing one that is closed or was never open is reported and refused.
 * Column and variable numbers count from 1, rows from 1. */

#include <stdint.h>

#include <host/Export.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Opens a data package (its folder or its datapackage.json) or a CSV file.
 *  Returns 0 and fills `dictionary`, or -1 and sets it to null. */
KORVA_API int64_t korva_open_(const char* path, const int64_t* length, void** dictionary);

/** Closes a data set; a second time, or after the library ended, is harmless:
 *  0 then too. Sets `dictionary` to null. */
KORVA_API int64_t korva_close_(void** dictionary);

/** Rows of the data set. */
KORVA_API int64_t korva_rowcount_(void** dictionary);
/** Columns of the data set. */
KORVA_API int64_t korva_columncount_(void** dictionary);
/** The column of that name, from 1, or -1. */
KORVA_API int64_t korva_findcolumn_(void** dictionary, const char* name, const int64_t* length);

/** Names the variables of the run: variable number v is the v-th of `columns`.
 *  Without this call, and with count 0, every column is a variable, in order. */
KORVA_API int64_t korva_usevariables_(void** dictionary, const int64_t* columns,
                                      const int64_t* count);
/** Names the split variables by column number; count 0 ends splitting. Both lists
 *  have at most 65536 columns and stay as they were when one is refused. */
KORVA_API int64_t korva_splitby_(void** dictionary, const int64_t* columns, const int64_t* count);

/** Cells of one row of the run's variables: one for a number, one for every
 *  eight bytes of a string value. */
KORVA_API int64_t korva_cellcount_(void** dictionary);
/** Reads one row of the run's variables into `cells`, which has room for
 *  `capacity` cells; returns the cells written. A missing number is the
 *  system-missing value; a string is padded with blanks, a missing one is blank. */
KORVA_API int64_t korva_readrow_(void** dictionary, const int64_t* row, double* cells,
                                 const int64_t* capacity);

/** The system-missing value. */
KORVA_API double korva_missing_(void);

/** The folder for charts; empty goes back to the default. */
KORVA_API int64_t korva_setoutput_(const char* folder, const int64_t* length);
/** The output language, before the library starts: "en", "de", "ja". */
KORVA_API int64_t korva_setlanguage_(const char* code, const int64_t* length);
/** Any value but 0: a bootstrap run is in progress, charts are not sent. */
KORVA_API int64_t korva_setbootstrapping_(const int64_t* on);

/* How display texts write numbers, from the call on. */

/** Any value but 0: labels of values have their digits grouped. They have not at
 *  first, because that would group years too. */
KORVA_API int64_t korva_setgrouping_(const int64_t* on);
/** The digits that a number has before its decimal sign at least, 0 to 40; at first
 *  1. */
KORVA_API int64_t korva_setintegerdigits_(const int64_t* digits);
/** The signs of numbers: one printable character each, no digit, not the same; the
 *  grouping sign may be empty. Both empty: those of the output language, as at
 *  first. */
KORVA_API int64_t korva_setlocale_(const char* decimal, const int64_t* decimalLength,
                                   const char* grouping, const int64_t* groupingLength);
/** No locale at all: a point, and a comma where digits are grouped. */
KORVA_API int64_t korva_clearlocale_(void);
/** What stands around amounts of custom currency `number`, 0 to 4, which display
 *  formats 33 to 37 show. Around an amount below zero the negative texts stand
 *  outside of the others; without either of them it has a minus sign. */
KORVA_API int64_t korva_setcurrency_(const int64_t* number, const char* prefix,
                                     const int64_t* prefixLength, const char* suffix,
                                     const int64_t* suffixLength, const char* negativePrefix,
                                     const int64_t* negativePrefixLength,
                                     const char* negativeSuffix,
                                     const int64_t* negativeSuffixLength);

/** Takes the oldest error not yet taken: writes at most `capacity` bytes of its
 *  message, cut at a character, sets `length` to the bytes written and returns 1; 0 when
 *  there is none. */
KORVA_API int64_t korva_geterror_(char* text, const int64_t* capacity, int64_t* length);

#ifdef __cplusplus
}
#endif

#endif
