// What does the report cost in DuckDB, in memory, from the query to the whole text?
//   node duckdb_report.mjs --modules FOLDER --data parts.csv [--threads N] [--runs N] [--text report.txt]
// Measured as its fastest way: one query whose aggregates join the lines of each group, so that few rows are fetched.
// Window functions and sorting all rows by all keys take longer; casts to decimals are faster than printf.
import { dataPath, measure, requirePackage, threads } from './comparison_run.mjs';

const { DuckDBInstance } = requirePackage('@duckdb/node-api');

const decimals = (number, places) => `CAST(${number} AS DECIMAL(18, ${places}))`;

const line = `concat_ws('\t', handle, num, mark, material, profile, ${decimals('length', 1)}, ${decimals('weight', 2)},
    ${decimals('paint', 2)}, quantity, phase, class, coating, ${decimals('thick', 1)}, ${decimals('width', 1)},
    ${decimals('length * quantity / 1000', 1)})`;

// On one thread rows keep their order on the way into a group, so they are sorted by length before. On several they do
// not, and each group puts its own lines in order, by lists: an aggregate with an order would take twice as long.
const [rowOrder, lines] = threads === '1'
    ? ['ORDER BY length DESC', "string_agg(line, '\n')"]
    : ['', "array_to_string(list_select(list(line), list_grade_up(list(length), 'DESC')), '\n')"];

const marks = `
    SELECT material, CAST(substr(mark, 2) AS INTEGER) AS number, sum(weight) AS weight,
           concat(mark, '\n', ${lines}, '\n', ${decimals('sum(weight)', 2)}, '\n') AS block
    FROM (SELECT material, mark, length, weight, ${line} AS line FROM parts ${rowOrder})
    GROUP BY material, mark`;

const materials = `
    SELECT concat(material, '\n', string_agg(block, '' ORDER BY number), ${decimals('sum(weight)', 2)}, '\n'),
           sum(weight)
    FROM (${marks}) GROUP BY material ORDER BY material`;

const load = `CREATE TABLE parts AS SELECT * FROM read_csv('${dataPath}', header = true, columns = {
    handle: 'VARCHAR', num: 'VARCHAR', mark: 'VARCHAR', material: 'VARCHAR', profile: 'VARCHAR', length: 'DOUBLE',
    weight: 'DOUBLE', paint: 'DOUBLE', quantity: 'INTEGER', phase: 'VARCHAR', class: 'VARCHAR', coating: 'VARCHAR',
    thick: 'DOUBLE', width: 'DOUBLE'})`;

const instance = await DuckDBInstance.create(':memory:', { threads });
const connection = await instance.connect();
await connection.run(load);
const [[count], [version]] = (await connection.runAndReadAll('SELECT count(*), version() FROM parts')).getColumns();

await measure(`DuckDB ${version.slice(1)}`, count, async () => {
    const [texts, weights] = (await connection.runAndReadAll(materials)).getColumns();
    const total = weights.reduce((sum, weight) => sum + weight, 0);
    return `${texts.join('')}${total.toFixed(2)}\n`;
});
