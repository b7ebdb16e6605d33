#pragma once

/// All record counters to 0; IDs are given out from the first again.
void SaetzeLeeren();

/// Empties the records and gives out IDs from the first again. The parameters are checked while the program
/// runs, and set to their defaults while it starts; AutoDatei becomes Unbenannt. Asks nothing.
void BuchLeeren();

/// What follows a load that failed: BuchLeeren, view, title and list of years are brought up to date.
void BuchVerwerfen();
