/*
 * Lists of parts for programs in any language: what the program mekbom prints, made in memory.
 *
 *   mekbom_session* session = mekbom_open();
 *   mekbom_add_parts(session, "parts.csv", bytes, size);
 *   mekbom_set_template(session, "list.json", text, length);
 *   if (mekbom_evaluate(session) == MEKBOM_DONE)
 *       fputs(mekbom_write(session, "text").bytes, stdout);
 *   else
 *       fputs(mekbom_findings(session).bytes, stderr);
 *   mekbom_close(session);
 *
 * Texts are UTF-8. Those that come in are copied. Those that go out belong to the session and are good until the next
 * call for it; their bytes end with a zero that is not counted.
 *
 * No function opens a file, changes anything of the process, throws, or lets an exception through. Sessions are
 * independent of each other: each has its own parts, units and settings, and may be used by one thread at a time.
 *
 * How a report is written follows the options that are set then; what it shows, those that it was made with.
 *
 * A null session is answered with MEKBOM_WRONG_USAGE or with nothing.
 */
#ifndef MEKBOM_H
#define MEKBOM_H

#include <stddef.h>

#if defined(_WIN32)
#ifdef MEKBOM_EXPORTS
#define MEKBOM_CALL __declspec(dllexport)
#else
#define MEKBOM_CALL __declspec(dllimport)
#endif
#else
#define MEKBOM_CALL __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C"
{
#endif

    typedef struct mekbom_session mekbom_session;

    /* How a call ended; numbers are those that the program mekbom exits with. mekbom_findings() tells the reasons. */
    typedef enum mekbom_status
    {
        MEKBOM_DONE = 0,
        MEKBOM_MISTAKES = 1,       /* the template, or the parts under it, would make a wrong list */
        MEKBOM_WRONG_USAGE = 2,    /* something is missing, or an option does not go with the parts */
        MEKBOM_INVALID_INPUT = 3,  /* parts, template or options cannot be read */
        MEKBOM_STOPPED = 5,        /* by the host's own mekbom_progress */
        MEKBOM_INTERNAL_FAULT = 70 /* a mistake of this library, or no memory left */
    } mekbom_status;

    typedef struct mekbom_text
    {
        const char* bytes; /* never null */
        size_t size;       /* 0 for nothing */
    } mekbom_text;

    /* "1.0.0" */
    MEKBOM_CALL const char* mekbom_version(void);

    /* A new session without parts, template and options; null when no memory is left. To be closed once, which may be done
   at any time; closing null does nothing. */
    MEKBOM_CALL mekbom_session* mekbom_open(void);
    MEKBOM_CALL void mekbom_close(mekbom_session* session);

    /* ---- What a list is made of. Names are what findings call the bytes, such as a file's name. ---- */

    /* Adds a parts list as it stands in a file: CSV, a workbook (.xlsx) or JSON. Its rows follow those that are there. */
    MEKBOM_CALL mekbom_status mekbom_add_parts(mekbom_session* session, const char* name, const char* bytes,
                                               size_t size);

    /* A column of rows that are in no file. Its heading is as in a parts list: "Name", "Length [mm]", "%Weight". Each row has
   its text where there are texts and this one is neither null nor empty, else its number where there are numbers and this
   one is not a NaN, else nothing. */
    typedef struct mekbom_column
    {
        const char* heading;
        const double* numbers;    /* one for each row, or null */
        const char* const* texts; /* one for each row, each ending with a zero, or null */
    } mekbom_column;

    /* Adds rows. Those of the call before go on where name and headings are the same, so that rows may come in blocks, or one
   by one. MEKBOM_INVALID_INPUT for a text that is not UTF-8, for an infinite number, and for rows without columns; the rows
   before it stay. */
    MEKBOM_CALL mekbom_status mekbom_add_rows(mekbom_session* session, const char* name, const mekbom_column* columns,
                                              size_t num_columns, size_t num_rows);

    /* Forgets all parts and rows. */
    MEKBOM_CALL mekbom_status mekbom_remove_parts(mekbom_session* session);

    /* The assemblies that parts name in their column Assembly: bytes as of parts. */
    MEKBOM_CALL mekbom_status mekbom_set_assemblies(mekbom_session* session, const char* name, const char* bytes,
                                                    size_t size);

    /* The template of the list, JSON. Several may be offered in its place: the one that suits the columns best is taken; if
   none does, the columns are printed as they are. */
    MEKBOM_CALL mekbom_status mekbom_set_template(mekbom_session* session, const char* name, const char* bytes,
                                                  size_t size);
    MEKBOM_CALL mekbom_status mekbom_offer_template(mekbom_session* session, const char* name, const char* bytes,
                                                    size_t size);

    /* Options: a JSON object whose keys are the options of "mekbom report" without their dashes, but for those of files.
   They replace all that were set before.
       { "units": "imperial", "unit": { "weight": "kg/1" }, "where": "%Length > 6 m", "sets": 2, "values": "plain" } */
    MEKBOM_CALL mekbom_status mekbom_set_options(mekbom_session* session, const char* bytes, size_t size);

    /* Is called while a report is made, on its thread: in step 0 with the number of rows read, in step 1 with the number of
   rows placed in the list. Returns 0 to go on, anything else to stop. A null call tells nobody.
   Meanwhile the session answers MEKBOM_WRONG_USAGE, or nothing, to every call but mekbom_close(), which closes it when the
   report has ended. Other sessions may be used. */
    typedef int (*mekbom_progress)(void* user, int step, size_t num_rows);
    MEKBOM_CALL mekbom_status mekbom_set_progress(mekbom_session* session, mekbom_progress call, void* user);

    /* ---- The report. ---- */

    /* Makes the report of all that was set. A report made before is gone, whatever the answer. */
    MEKBOM_CALL mekbom_status mekbom_evaluate(mekbom_session* session);

    /* Looks for mistakes in the template, and in the parts if there are any, without making a report. */
    MEKBOM_CALL mekbom_status mekbom_check(mekbom_session* session);

    /* What was found by the last mekbom_evaluate() or mekbom_check(), or by a call since then that failed: a JSON array with
   an object for each finding, which has "severity", "code", "message", and where it is. Warnings and notes may stand
   beside a report. */
    MEKBOM_CALL mekbom_text mekbom_findings(mekbom_session* session);

    /* The whole report in one of the formats "text", "csv", "tsv", "xlsx", "html" and "json". Nothing without a report, and
   for another name, of which mekbom_findings() tells. */
    MEKBOM_CALL mekbom_text mekbom_write(mekbom_session* session, const char* format);

    /* The columns of the report, as a JSON array: "token", "label", "heading", "kind", "unit", "shownUnit". */
    MEKBOM_CALL mekbom_text mekbom_columns(mekbom_session* session);

    /* Lines of the report, from line `first` on, counted from 0: a JSON array with an object for each, which has "line",
   "level", "role" ("header", "footer", "group", "line"), "values" (numbers are in the unit of their column), "shown", and
   "handles" of the parts that make up an ordinary line. */
    MEKBOM_CALL size_t mekbom_num_lines(mekbom_session* session);
    MEKBOM_CALL mekbom_text mekbom_lines(mekbom_session* session, size_t first, size_t num_lines);

    /* The handles of the parts behind a line, of a total those that it counts: {"handles": [...], "mergedHandles": [...]}. */
    MEKBOM_CALL mekbom_text mekbom_handles(mekbom_session* session, size_t line);

    /* ---- What there is to choose from. ---- */

    /* As JSON: the "tokens" that parts can have, the "kinds" of quantities, the "units" of each, the "formats", and the
   schemas of templates ("schema") and of reports in JSON ("list-schema"). Nothing for another name. */
    MEKBOM_CALL mekbom_text mekbom_describe(mekbom_session* session, const char* what);

#ifdef __cplusplus
}
#endif

#endif
