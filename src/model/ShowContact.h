#pragma once

/// Shows curContact in the tree and in the contact list: its node is selected and opened, the first tab comes up, and
/// its row is the selected one, with the focus on "FirstName".
void ShowContact();
