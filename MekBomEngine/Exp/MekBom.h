// All that a host needs of the engine: rows, templates, evaluation, units, settings, formulas and the version.
//
//   VorBomTemplate report;
//   report.setUnitsForTokens(nullptr);
//   report.findUsedTokens();
//   VorBomTemplate result;
//   VorBomEvaluator2::evaluate(&report, &result);
//
// VorBomEvaluator2.h tells in which order things are called; each header can be included on its own as well.
#pragma once

#include "MekBomEngine/Exp/MekBomVersion.h"
#include "MekBomEngine/Src/VorBomCountedRows.h"
#include "MekBomEngine/Src/VorBomData.h"
#include "MekBomEngine/Src/VorBomDataRow.h"
#include "MekBomEngine/Src/VorBomDataToken.h"
#include "MekBomEngine/Src/VorBomDataTuple.h"
#include "MekBomEngine/Src/VorBomDataValue.h"
#include "MekBomEngine/Src/VorBomDiagnostics.h"
#include "MekBomEngine/Src/VorBomEngineState.h"
#include "MekBomEngine/Src/VorBomEvaluationOptions.h"
#include "MekBomEngine/Src/VorBomEvaluator2.h"
#include "MekBomEngine/Src/VorBomFinding.h"
#include "MekBomEngine/Src/VorBomItemBase.h"
#include "MekBomEngine/Src/VorBomNumberFormat.h"
#include "MekBomEngine/Src/VorBomProgress.h"
#include "MekBomEngine/Src/VorBomReport.h"
#include "MekBomEngine/Src/VorBomReportSection.h"
#include "MekBomEngine/Src/VorBomSectionSink.h"
#include "MekBomEngine/Src/VorBomTemplate.h"
#include "MekBomEngine/Src/VorBomTemplateCheck.h"
#include "MekBomEngine/Src/VorBomTemplateItem.h"
#include "MekBomEngine/Src/VorBomTemplateUnits.h"
#include "MekBomEngine/Src/VorBomTokenCatalogue.h"
#include "MekBomEngine/Src/VorBomTypedValue.h"
#include "MekBomEngine/Src/VorHeaderFooterSortingStruct.h"

#include "ExpressionEvaluator/Src/ExpressionsEvaluator.h"
#include "ExpressionEvaluator/Src/VorFormulaError.h"
#include "ExpressionEvaluator/Src/evaluateFormula.h"
#include "KTRepositoryProxy/Src/KTIniReader.h"
#include "MekUnits/Src/VorQuantityReader.h"
#include "MekUnits/Src/VorUnitNotation.h"

#include "MekRoots/Exp/KTRepositoryProxy.h"
#include "MekRoots/Exp/MEKUnit.h"
#include "MekRoots/Exp/MEKUnitsCommon.h"
#include "MekRoots/Exp/VorArray.h"
#include "MekRoots/Exp/VorAssert.h"
#include "MekRoots/Exp/VorDebugOutput.h"
#include "MekRoots/Exp/VorGenericString.h"
#include "MekRoots/Exp/VorString.h"
#include "MekRoots/Exp/VorUnitTransform.h"
#include "MekRoots/Exp/VorUnitsManager.h"
#include "MekRoots/Exp/VorUnitsTransformArray.h"
#include "MekRoots/Exp/VorUtf8.h"
