#pragma once

/// Makes buttons that are worked by a screen reader, which sends no key and no mouse press, run the lost-focus rule of
/// the text box that the user is in before they act. Once for the whole program; more do no harm.
void InstallButtonAccess();
