// What does the report cost in Polars, from the loaded frame to the whole text?
//   node polars_report.mjs --modules FOLDER --data parts.csv [--threads N] [--runs N] [--text report.txt]
// Measured as its fastest way: rows sorted by length alone, lines joined within each group by mark, then only the
// groups sorted. Sorting the rows by all keys takes longer; casts to decimals are faster than rounding.
import { dataPath, measure, requirePackage, threads } from './comparison_run.mjs';

process.env.POLARS_MAX_THREADS = threads; // read when the package is loaded
const pl = requirePackage('nodejs-polars').default;
const column = pl.col;

const text = (number, places) => number.cast(pl.Decimal(18, places)).cast(pl.Utf8);
const joined = (exprs, separator) => pl.concatString({ exprs, sep: separator });

// Expressions are made once, as a prepared statement is: that alone costs more than the report of 10000 rows.
const detailsLine = joined(
    [
        column('Handle'), column('Num'), column('MNum'), column('Material'), column('Name'),
        text(column('Length'), 1), text(column('Weight'), 2), text(column('Paint'), 2),
        column('Quantity').cast(pl.Utf8), column('Phase'), column('Class'), column('Coating'),
        text(column('Thick'), 1), text(column('Width'), 1),
        text(column('Length').mul(column('Quantity')).div(1000), 1),
    ],
    '\t').alias('Line');
const partColumns = [column('Material'), column('MNum'), column('Length'), column('Weight'), detailsLine];
const markSums = [column('Line').str.concat('\n').alias('Lines'), column('Weight').sum()];
const markOrder = [column('Material'), column('MNum').str.slice(1).cast(pl.Int64)];
const markColumns = [column('Material'), column('Weight'),
    joined([column('MNum'), column('Lines'), text(column('Weight'), 2)], '\n').alias('Block')];
const materialSums = [column('Block').str.concat('\n').alias('Blocks'), column('Weight').sum()];
const materialColumns = [column('Weight'),
    joined([column('Material'), column('Blocks'), text(column('Weight'), 2)], '\n').alias('Text')];

function materialsOf(parts) {
    return parts.lazy()
        .select(...partColumns).sort('Length', true)
        .groupBy(['Material', 'MNum']).agg(...markSums).sort(markOrder)
        .select(...markColumns).groupBy(['Material'], true).agg(...materialSums)
        .select(...materialColumns)
        .collectSync();
}

function load() {
    const asText = Object.fromEntries(['Handle', 'Num', 'Phase', 'Class'].map((name) => [name, pl.Utf8]));
    const asNumber = Object.fromEntries(['Thick [mm]', 'Width [mm]'].map((name) => [name, pl.Float64]));
    const parts = pl.readCSV(dataPath, { dtypes: { ...asText, ...asNumber } });
    const withUnits = parts.columns.filter((name) => name.includes(' ['));
    return parts.rename(Object.fromEntries(withUnits.map((name) => [name, name.split(' ')[0]])));
}

const parts = load();
await measure(`Polars ${requirePackage('nodejs-polars/package.json').version}`, parts.height, () => {
    const materials = materialsOf(parts);
    const total = materials.getColumn('Weight').sum();
    return `${materials.getColumn('Text').toArray().join('\n')}\n${total.toFixed(2)}\n`;
});
