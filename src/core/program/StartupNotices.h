#pragma once

class PreferencesRepository;
class QWidget;

// What the program says by itself after its start. Where the network fails, it says nothing. The
// preferences must live as long as the window.

// Shows the notes of this version if an older one, or none, ran here before. They are asked for at
// one start only: at the next they count as shown, also where they could not be had.
void offerWhatsNew(PreferencesRepository *preferences, QWidget *window);

// Looks for a newer release and offers each version once, whatever is answered.
void startUpdateCheck(PreferencesRepository *preferences, QWidget *window);
