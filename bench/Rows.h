#pragma once

namespace veldra::bench {

// One function per row; each returns the row's ratio.
double commandsAgainstShell();
double executeAgainstSpawn();
double expansionAgainstProcess();
double listingAgainstPerl();
double listingMemory();
double checkoutGrowth();
double statusAgainstSubversion();
double checkinBatchAgainstSubversion();
double addBatchAgainstSubversion();
double queryAgainstStatus();
double lockAgainstSubversion();
double getAgainstUpdate();
double checkoutAgainstShell();
double gitListing();
double subversionListing();
double synchronizeAgainstListing();
double consumerAgainstLoop();
double floodAgainstCat();
double floodMemory();
double comparisonAgainstDiff();

// These need the dialogs.
double openListAgainstBareView();
double openTreeAgainstBareView();
double openArchiveAgainstBareView();
double dialogMemory();
double sortAgainstStdSort();
double refillAgainstOpening();
double refillKeepsSelection();

/// Prints 200 MB on each of the two outputs, for the rows about floods.
int printFlood();

}  // namespace veldra::bench
