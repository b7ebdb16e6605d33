#pragma once

// Defaults and repair of the [Parameter] values of a grade book.

/// The values of a new grade book, and the titles of the free student fields.
void SetzeParameterDefaults();

/// Replaces what is out of range, and selects AktJahr in the list of years. A half-year or end-of-year change
/// that is no date throws a Laufzeitfehler: the values behind it are then unchecked.
void PruefeParameter();
