// The codes of all findings, each with what it says. Programs and templates name findings by them: a code is never given
// to another finding.
//
// MB7xx parts lists, MB8xx template files, MB9xx options, settings and units. The hundreds below are the mistakes
// of template authors.
#pragma once

namespace mekbom::FindingCodes
{
}
