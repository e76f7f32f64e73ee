// What the JavaScript programs of the comparison have in common: their arguments, where they find their packages, and
// how they tell their times.
//   node duckdb_report.mjs --modules FOLDER --data parts.csv [--runs N] [--text report.txt]
// FOLDER holds the node_modules with the database.
import { createRequire } from 'node:module';
import { parseArgs } from 'node:util';
import { writeFileSync } from 'node:fs';

const { values: options } = parseArgs({
    options: {
        modules: { type: 'string' },
        data: { type: 'string' },
        runs: { type: 'string', default: '5' },
        text: { type: 'string' },
    },
});

export const requirePackage = createRequire(`${options.modules}/`);
export const dataPath = options.data;

// Makes the report --runs times and prints the times of all runs but the first.
export async function measure(program, numRows, makeReport) {
    const milliseconds = [];
    let text = '';
    for (let run = 0; run < Number(options.runs); ++run) {
        const start = performance.now();
        text = await makeReport();
        milliseconds.push(performance.now() - start);
    }
    if (options.text)
        writeFileSync(options.text, text);
    console.log(JSON.stringify({ program, rows: Number(numRows), milliseconds: milliseconds.slice(1) }));
}
