#pragma once

namespace sagomi {

class Schermo;

/// What Ctrl+P and, as a preview, Ctrl+Shift+P show of a screen: of main screens and details the section in
/// use, of any other its largest picture. Of one that draws nothing its table or text is printed; one that
/// has none says so.
/// @param anteprima  the preview, else the printer
void StampaSchermo(Schermo& schermo, bool anteprima);

} // namespace sagomi
