// Lists from the objects of a model, in C: rows from structs, a template as a text, progress, and the way back from a
// line of the list to its objects.
//
// Output:
//
// Parts by material
//
// Material  Mark  Pieces  Total [kg]
// --------  ----  ------  ----------
// S235JR
//           P1         4       10
//
// S355J2
//           C1         2      956.5
//           R1         1      673.78
// --------  ----  ------  ----------
// Total                7     1640.28
//
// 3 rows read, 3 listed
//
// 6 lines; the one chosen: [
// {"line": 3, "level": 2, "role": "line", "values": [null, "C1", 2, 956.5], "shown": [null, "C1", "2", "956.5"], "handles": ["C1"]}]
// its objects: {"handles": ["C1"]}
// objects of the total: {"handles": ["P1", "C1", "R1"]}

#include "mekbom.h"

#include <stdio.h>
#include <string.h>

struct part
{
    const char* mark;
    const char* material;
    double quantity;
    double weight; // of one piece, in kg
};

static const struct part model[] = { { "R1", "S355J2", 1, 673.78 },
                                     { "P1", "S235JR", 4, 2.5 },
                                     { "C1", "S355J2", 2, 478.25 } };

enum
{
    kNumParts = sizeof(model) / sizeof(model[0])
};

static const char* const list =
    "{ 'title': 'Parts by material',"
    "  'columns': [ { 'token': '%Material' }, { 'token': '%PNum', 'label': 'Mark' },"
    "               { 'token': '%Quantity', 'label': 'Pieces' },"
    "               { 'token': '%Formula:%Weight*%Quantity', 'label': 'Total' } ],"
    "  'sections': ["
    "    { 'type': 'kReportHeader', 'children': ["
    "      { 'type': 'kGroupHeader',"
    "        'tuples': [ { 'token': '%GroupBy:%Material' }, { 'token': '%SortAscBy:%Material' }, { 'token': "
    "'%Material' } ],"
    "        'children': ["
    "          { 'type': 'kDetails',"
    "            'tuples': [ { 'token': '%SortAscBy:%PNum' }, { 'token': '%PNum' }, { 'token': '%Quantity' },"
    "                        { 'token': '%Formula:%Weight*%Quantity' } ] } ] } ] },"
    "    { 'type': 'kReportFooter', 'label': 'Total',"
    "      'tuples': [ { 'token': '%SumBy:%Quantity' }, { 'token': '%SumBy:%Formula:%Weight*%Quantity' } ] } ] }";

// The list with the quotes of JSON, which are tedious to write in C.
static size_t write_template(char* text, size_t size)
{
    size_t length = strlen(list);
    size_t i;
    for (i = 0; i < length && i < size; ++i)
        text[i] = list[i] == '\'' ? '"' : list[i];
    return i;
}

// Columns are headed as those of a parts list. The handle is what the list calls an object.
static mekbom_status add_model(mekbom_session* session)
{
    const char* marks[kNumParts];
    const char* materials[kNumParts];
    double quantities[kNumParts];
    double weights[kNumParts];
    const mekbom_column columns[] = { { "Handle", NULL, marks },
                                      { "%PNum", NULL, marks },
                                      { "%Material", NULL, materials },
                                      { "%Quantity", quantities, NULL },
                                      { "%Weight [kg]", weights, NULL } };
    for (size_t i = 0; i < kNumParts; ++i)
    {
        marks[i] = model[i].mark;
        materials[i] = model[i].material;
        quantities[i] = model[i].quantity;
        weights[i] = model[i].weight;
    }
    return mekbom_add_rows(session, "model", columns, sizeof(columns) / sizeof(columns[0]), kNumParts);
}

// Where a dialog would move its bar, and ask whether its user has had enough.
static int show_progress(void* user, int step, size_t num_rows)
{
    size_t* const most = user;
    (void)step;
    if (num_rows > *most)
        *most = num_rows;
    return 0;
}

int main(void)
{
    char text[2048];
    size_t most = 0;
    const size_t length = write_template(text, sizeof(text));
    mekbom_session* const session = mekbom_open();
    mekbom_set_template(session, "parts by material", text, length);
    mekbom_set_progress(session, show_progress, &most);
    if (add_model(session) != MEKBOM_DONE || mekbom_evaluate(session) != MEKBOM_DONE)
    {
        fputs(mekbom_findings(session).bytes, stderr);
        mekbom_close(session);
        return 1;
    }
    fputs(mekbom_write(session, "text").bytes, stdout);
    printf("\n%zu lines; the one chosen: %s", mekbom_num_lines(session), mekbom_lines(session, 3, 1).bytes);
    printf("its objects: %s", mekbom_handles(session, 3).bytes);
    printf("objects of the total: %s", mekbom_handles(session, mekbom_num_lines(session) - 1).bytes);
    mekbom_close(session);
    return 0;
}
