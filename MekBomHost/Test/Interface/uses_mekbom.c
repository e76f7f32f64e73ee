/*
 * A host in C: lists of bytes and of rows in memory, walked line by line, with progress, mistakes, and misuse. Prints what
 * is wrong and ends with 1, or nothing and 0.
 */
#include "mekbom.h"

#include <math.h>
#include <stdio.h>
#include <string.h>

static int failures = 0;

#define CHECK(condition)                                                                                               \
    do                                                                                                                 \
    {                                                                                                                  \
        if (!(condition))                                                                                              \
        {                                                                                                              \
            fprintf(stderr, "%s:%d: %s\n", __FILE__, __LINE__, #condition);                                            \
            ++failures;                                                                                                \
        }                                                                                                              \
    } while (0)

static const char* const parts = "Handle,Name,Length,Weight\n2A0,HEA200,6000,254\n2A1,IPE360,1524,87\n";
static const char* const list =
    "{ \"title\": \"Beams\", \"equalLines\": \"count\", \"sections\": ["
    "  { \"type\": \"kReportHeader\", \"children\": ["
    "    { \"type\": \"kDetails\","
    "      \"tuples\": [ { \"token\": \"%SortAscBy:%Name\" }, { \"token\": \"%Name\" }, { \"token\": \"%Length\" } ] } "
    "] },"
    "  { \"type\": \"kReportFooter\", \"label\": \"Total\", \"tuples\": [ { \"token\": \"%SumBy:%Length\" } ] } ] }";

static int is(mekbom_text text, const char* expected)
{
    CHECK(text.bytes[text.size] == '\0');
    if (strcmp(text.bytes, expected) == 0 && strlen(expected) == text.size)
        return 1;
    fprintf(stderr, "found    %s\nexpected %s\n", text.bytes, expected);
    return 0;
}

static int has(mekbom_text text, const char* part)
{
    if (strstr(text.bytes, part) != NULL)
        return 1;
    fprintf(stderr, "found    %s\nexpected ...%s...\n", text.bytes, part);
    return 0;
}

static mekbom_session* session_of_list(void)
{
    mekbom_session* const session = mekbom_open();
    CHECK(session != NULL);
    CHECK(mekbom_set_template(session, "list.json", list, strlen(list)) == MEKBOM_DONE);
    return session;
}

static void makes_a_list_of_bytes(void)
{
    mekbom_session* const session = session_of_list();
    CHECK(mekbom_add_parts(session, "parts.csv", parts, strlen(parts)) == MEKBOM_DONE);
    CHECK(mekbom_evaluate(session) == MEKBOM_DONE);
    CHECK(is(mekbom_findings(session), "[]\n"));
    CHECK(is(mekbom_write(session, "csv"), "Name,Length [mm]\r\nHEA200,6000\r\nIPE360,1524\r\n"));
    CHECK(mekbom_num_lines(session) == 3);
    CHECK(is(mekbom_lines(session, 1, 1), "[\n{\"line\": 1, \"level\": 1, \"role\": \"line\", \"values\": [\"IPE360\", "
                                          "1524], \"shown\": [\"IPE360\", \"1524\"], \"handles\": [\"2A1\"]}]\n"));
    CHECK(is(mekbom_handles(session, 2), "{\"handles\": [\"2A0\", \"2A1\"]}\n"));
    CHECK(has(mekbom_columns(session), "\"heading\": \"Length [mm]\", \"kind\": \"length\", \"unit\": \"mm\""));
    mekbom_close(session);
}

static void makes_a_list_of_rows(void)
{
    const char* const handles[] = { "2A0", "2A1", "2A2" };
    const char* const names[] = { "HEA200", NULL, "RHS" };
    const double lengths[] = { 0.1 + 0.2, NAN, 1e7 };
    const char* const texts[] = { NULL, "7' 6\"", "" };
    mekbom_session* const session = session_of_list();
    size_t i;
    for (i = 0; i < 3; ++i) /* one by one */
    {
        const mekbom_column columns[] = { { "Handle", NULL, handles + i },
                                          { "Name", NULL, names + i },
                                          { "Length", lengths + i, texts + i } };
        CHECK(mekbom_add_rows(session, "model", columns, 3, 1) == MEKBOM_DONE);
    }
    CHECK(mekbom_evaluate(session) == MEKBOM_DONE);
    CHECK(mekbom_num_lines(session) == 4);
    CHECK(
        is(mekbom_lines(session, 0, 3),
           "[\n{\"line\": 0, \"level\": 1, \"role\": \"line\", \"values\": [null, 2286], \"shown\": [null, \"2286\"], "
           "\"handles\": [\"2A1\"]},\n"
           "{\"line\": 1, \"level\": 1, \"role\": \"line\", \"values\": [\"HEA200\", 0.30000000000000004], "
           "\"shown\": [\"HEA200\", \"0.3\"], \"handles\": [\"2A0\"]},\n"
           "{\"line\": 2, \"level\": 1, \"role\": \"line\", \"values\": [\"RHS\", 10000000], \"shown\": [\"RHS\", "
           "\"10000000\"], \"handles\": [\"2A2\"]}]\n"));
    mekbom_close(session);
}

static void tells_what_is_wrong(void)
{
    const char* const bad_names[] = { "Tr\xE4ger" };
    const double infinite[] = { INFINITY };
    const mekbom_column bad_text = { "Name", NULL, bad_names };
    const mekbom_column bad_number = { "Length", infinite, NULL };
    mekbom_session* const session = session_of_list();
    CHECK(mekbom_evaluate(session) == MEKBOM_WRONG_USAGE);
    CHECK(has(mekbom_findings(session), "there are no parts to make a list of"));
    CHECK(mekbom_add_rows(session, "model", &bad_text, 1, 1) == MEKBOM_INVALID_INPUT);
    CHECK(has(mekbom_findings(session), "found byte 0xE4"));
    CHECK(mekbom_add_rows(session, "model", &bad_number, 1, 1) == MEKBOM_INVALID_INPUT);
    CHECK(has(mekbom_findings(session), "found inf"));
    CHECK(mekbom_remove_parts(session) == MEKBOM_DONE);
    CHECK(mekbom_add_parts(session, "parts.csv", parts, strlen(parts)) == MEKBOM_DONE);
    CHECK(mekbom_set_template(session, "list.json", "{", 1) == MEKBOM_DONE);
    CHECK(mekbom_check(session) == MEKBOM_INVALID_INPUT);
    CHECK(has(mekbom_findings(session), "\"source\": \"list.json\""));
    CHECK(mekbom_set_options(session, "{ \"sets\": 0 }", 13) == MEKBOM_INVALID_INPUT);
    CHECK(has(mekbom_findings(session), "/sets"));
    CHECK(is(mekbom_write(session, "csv"), ""));
    CHECK(is(mekbom_lines(session, 0, 10), ""));
    CHECK(mekbom_num_lines(session) == 0);
    mekbom_close(session);
}

static int stop_after(void* user, int step, size_t num_rows)
{
    (void)num_rows;
    ++((int*)user)[step];
    return step == 1;
}

static void stops_when_asked(void)
{
    int calls[2] = { 0, 0 };
    mekbom_session* const session = session_of_list();
    CHECK(mekbom_add_parts(session, "parts.csv", parts, strlen(parts)) == MEKBOM_DONE);
    CHECK(mekbom_set_progress(session, stop_after, calls) == MEKBOM_DONE);
    CHECK(mekbom_evaluate(session) == MEKBOM_STOPPED);
    CHECK(calls[0] > 0 && calls[1] == 1);
    CHECK(mekbom_set_progress(session, NULL, NULL) == MEKBOM_DONE);
    CHECK(mekbom_evaluate(session) == MEKBOM_DONE);
    mekbom_close(session);
}

/* What a host must not do while it is called, and closing, which waits. */
static int meddle(void* user, int step, size_t num_rows)
{
    mekbom_session* const session = user;
    (void)step;
    (void)num_rows;
    CHECK(mekbom_remove_parts(session) == MEKBOM_WRONG_USAGE);
    CHECK(mekbom_add_parts(session, "parts.csv", parts, 5) == MEKBOM_WRONG_USAGE);
    CHECK(mekbom_set_template(session, "list.json", "{", 1) == MEKBOM_WRONG_USAGE);
    CHECK(mekbom_set_progress(session, NULL, NULL) == MEKBOM_WRONG_USAGE);
    CHECK(mekbom_evaluate(session) == MEKBOM_WRONG_USAGE);
    CHECK(mekbom_num_lines(session) == 0);
    CHECK(is(mekbom_write(session, "csv"), ""));
    return 0;
}

static int close_session(void* user, int step, size_t num_rows)
{
    (void)step;
    (void)num_rows;
    mekbom_close(user);
    return 0;
}

static void lets_nobody_meddle_with_a_report(void)
{
    mekbom_session* session = session_of_list();
    CHECK(mekbom_add_parts(session, "parts.csv", parts, strlen(parts)) == MEKBOM_DONE);
    CHECK(mekbom_set_progress(session, meddle, session) == MEKBOM_DONE);
    CHECK(mekbom_evaluate(session) == MEKBOM_DONE);
    CHECK(mekbom_num_lines(session) == 3);
    CHECK(mekbom_set_progress(session, close_session, session) == MEKBOM_DONE);
    CHECK(mekbom_evaluate(session) == MEKBOM_DONE); /* and it is gone */
}

static void keeps_sessions_apart(void)
{
    const char* const imperial = "{ \"units\": \"imperial\" }";
    mekbom_session* const one = session_of_list();
    mekbom_session* const other = session_of_list();
    CHECK(mekbom_add_parts(one, "parts.csv", parts, strlen(parts)) == MEKBOM_DONE);
    CHECK(mekbom_add_parts(other, "parts.csv", parts, strlen(parts)) == MEKBOM_DONE);
    CHECK(mekbom_set_options(other, imperial, strlen(imperial)) == MEKBOM_DONE);
    CHECK(mekbom_evaluate(other) == MEKBOM_DONE);
    CHECK(mekbom_evaluate(one) == MEKBOM_DONE);
    CHECK(has(mekbom_lines(other, 1, 1), "\"5'\""));
    CHECK(has(mekbom_lines(one, 1, 1), "\"1524\""));
    mekbom_close(one);
    CHECK(has(mekbom_lines(other, 1, 1), "\"5'\""));
    mekbom_close(other);
}

static void survives_misuse(void)
{
    mekbom_session* const session = mekbom_open();
    CHECK(mekbom_evaluate(NULL) == MEKBOM_WRONG_USAGE);
    CHECK(mekbom_add_parts(NULL, "parts.csv", parts, 1) == MEKBOM_WRONG_USAGE);
    CHECK(is(mekbom_findings(NULL), ""));
    CHECK(is(mekbom_write(NULL, "csv"), ""));
    CHECK(mekbom_num_lines(NULL) == 0);
    mekbom_close(NULL);
    CHECK(mekbom_add_parts(session, NULL, NULL, 5) == MEKBOM_DONE);
    CHECK(mekbom_set_template(session, NULL, NULL, 0) == MEKBOM_DONE);
    CHECK(mekbom_evaluate(session) == MEKBOM_INVALID_INPUT);
    CHECK(mekbom_add_rows(session, NULL, NULL, 0, 7) == MEKBOM_INVALID_INPUT);
    CHECK(mekbom_add_rows(session, NULL, NULL, 0, 0) == MEKBOM_DONE);
    CHECK(is(mekbom_write(session, NULL), ""));
    CHECK(is(mekbom_describe(session, NULL), ""));
    CHECK(is(mekbom_describe(session, "colours"), ""));
    CHECK(has(mekbom_describe(session, "tokens"), "\"%Weight\""));
    CHECK(has(mekbom_describe(session, "schema"), "\"$schema\""));
    mekbom_close(session);
}

int main(void)
{
    CHECK(strcmp(mekbom_version(), EXPECTED_VERSION) == 0);
    makes_a_list_of_bytes();
    makes_a_list_of_rows();
    tells_what_is_wrong();
    stops_when_asked();
    lets_nobody_meddle_with_a_report();
    keeps_sessions_apart();
    survives_misuse();
    return failures == 0 ? 0 : 1;
}
