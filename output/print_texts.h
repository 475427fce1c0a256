#pragma once

#include "document/play_file.h"
#include "output/page_layout.h"
#include "output/report_lines.h"

namespace zeltrona::output {

/// Fills title, heading, notes and font of the job (job.frames is set already): bytes of the play's character
/// set become UTF-8, and a stored break mark splits the heading.
void readPrintTexts(const document::PlayFile& play, PrintJob& job);

/// Fills title, heading, notes and character set of the report (report.frames is set already), as bytes.
void readReportTexts(const document::PlayFile& play, Report& report);

} // namespace zeltrona::output
