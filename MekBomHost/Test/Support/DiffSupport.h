// Lists of small parts lists, as they are compared.
#pragma once

#include "ComparedList.h"
#include "MemorySource.h"
#include "ReportJob.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace mekbom
{
struct ListOfParts
{
    // The texts are not owned and outlive the construction.
    ListOfParts(std::string_view templateText, std::string_view partsText)
        : job(requestOf(templateText, partsText)), list(made(job))
    {
    }

    static ReportRequest requestOf(std::string_view templateText, std::string_view partsText)
    {
        ReportRequest request;
        request.parts.push_back(std::make_unique<MemorySource>("parts.csv", partsText));
        request.pTemplate = std::make_unique<MemorySource>("list.json", templateText);
        request.contents.values = true;
        request.contents.rows = true;
        return request;
    }

    static const ReportJob& made(ReportJob& job)
    {
        EXPECT_EQ(kDone, job.run());
        for (const Finding& finding : job.findings().all())
            EXPECT_NE(Finding::kError, finding.severity) << messageOf(finding);
        return job;
    }

    ReportJob job;
    ComparedList list;
};
}
