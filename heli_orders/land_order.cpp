// Edit Land Order (template 153): the x and z of twelve landing positions,
// stored on OK. The y words are the host's and never touched.
#include "heli_orders/heli_order.h"
#include "heli_orders/order_dialogs.h"
#include "resources/heli_order_ids.h"
#include "util/dialogs.h"
#include "util/modal.h"

namespace {
module_flag module{1};  // always started: the order dialogs have no flag of their own
land_order *edited = nullptr;

// The x and z edits of each position, by position.
const int x_edits[LAND_POSITIONS] = {IDC_LAND_X0, IDC_LAND_X1, IDC_LAND_X2, IDC_LAND_X3, IDC_LAND_X4,  IDC_LAND_X5,
                                     IDC_LAND_X6, IDC_LAND_X7, IDC_LAND_X8, IDC_LAND_X9, IDC_LAND_X10, IDC_LAND_X11};
const int z_edits[LAND_POSITIONS] = {IDC_LAND_Z0, IDC_LAND_Z1, IDC_LAND_Z2, IDC_LAND_Z3, IDC_LAND_Z4,  IDC_LAND_Z5,
                                     IDC_LAND_Z6, IDC_LAND_Z7, IDC_LAND_Z8, IDC_LAND_Z9, IDC_LAND_Z10, IDC_LAND_Z11};

void on_init(HWND dialog) {
    for (int i = 0; i < LAND_POSITIONS; ++i) {
        show_number(dialog, x_edits[i], edited->positions[i].x);
        show_number(dialog, z_edits[i], edited->positions[i].z);
    }
    centre_dialog(dialog);
    ShowWindow(dialog, SW_SHOWNORMAL);
}

// Each field is read by the lenient rule ("12m" is 12); a refused one keeps
// its coordinate, silently.
dialog_end on_ok(HWND dialog) {
    for (int i = 0; i < LAND_POSITIONS; ++i) {
        read_number_lenient(dialog, x_edits[i], edited->positions[i].x);
        read_number_lenient(dialog, z_edits[i], edited->positions[i].z);
    }
    return END_CONFIRMED;
}

const dialog_class land_dialog = {on_init, nullptr, on_ok, nullptr, TRUE};
}  // namespace

int edit_land_order(HWND owner, land_order *order) {
    modal_session session(module);
    if (!session || !order) return 0;
    edited = order;
    return session.run(IDD_LAND_ORDER, owner, dialog_proc<land_dialog>);
}
