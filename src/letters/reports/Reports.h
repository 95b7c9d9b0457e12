#pragma once

/// Fills the openers of frmCreateWordFile, one for each place that offers a report.
void PlugReports();
