#include "dialog/rules/figure.h"

#include "model/config/values.h"

#include <vector>

namespace IPCUSTOMIZED::rules {

namespace {

struct Pin {
    const char* name; ///< `%1` is the lane's prefix
    int direction;
    bool bus;
    Qt::Alignment side;
};

// clang-format off
constexpr Pin out(const char* name)      { return {name, 1, false, Qt::AlignRight}; }
constexpr Pin outBus(const char* name)   { return {name, 1, true,  Qt::AlignRight}; }
constexpr Pin in(const char* name)       { return {name, 0, false, Qt::AlignLeft}; }
constexpr Pin inBus(const char* name)    { return {name, 0, true,  Qt::AlignLeft}; }

using Pins = std::vector<Pin>;

const Pins everyLane{
    out("%1_ready_o"),
    out("%1_pll_lock_o"),
    out("%1_rx_cdr_lock_o"),
    out("%1_signal_detect_o"),
    out("%1_refclk_o"),
    in("%1_pcs_tx_rst_i"),
    in("%1_pcs_rx_rst_i"),
    in("%1_pma_rstn_i"),
    out("%1_rx_valid_o"),
    in("%1_tx_clk_i"),
    out("%1_tx_pcs_clkout_o"),
    in("%1_rx_clk_i"),
    out("%1_rx_pcs_clkout_o"),
};

const Pins rxBlock{
    out("%1_rx_her_hi_o"),
    outBus("%1_rx_ctc_del_o[1:0]"),
    outBus("%1_rx_ctc_ins_o[1:0]"),
    out("%1_rx_invld_header_o"),
    out("%1_rx_dscr_err_o"),
    out("%1_rx_dec_err_o"),
    out("%1_rx_blk_lock_o"),
    outBus("%1_rxd_o[63:0]"),
    outBus("%1_rxc_o[7:0]"),
};

const Pins rxFifo{
    out("%1_rx_fifo_empty_o"),
    out("%1_rx_fifo_aempty_o"),
    outBus("%1_rx_fifo_rdusewd_o[4:0]"),
    in("%1_rx_fifo_rden_i"),
    outBus("%1_rx_data_o[87:0]"),
};

const Pins txBlock{
    out("%1_tx_invld_blk_o"),
    inBus("%1_tx_ctrl_i[2:0]"),
    out("%1_tx_fetch_o"),
    inBus("%1_txd_i[63:0]"),
    inBus("%1_txc_i[7:0]"),
};

const Pins txFifo{
    out("%1_tx_fifo_full_o"),
    out("%1_tx_fifo_afull_o"),
    outBus("%1_tx_fifo_wrusewd_o[4:0]"),
    in("%1_tx_fifo_wren_i"),
    outBus("%1_tx_data_i[79:0]"), // drawn among the outputs, beside the receive data
};

const Pins correction{in("%1_cc_clk_i")};
const Pins bonding{in("%1_cb_start_i")};
const Pins alignment{out("%1_word_align_link_o"), out("%1_k_lock_o")};

const Pins reconfiguration{
    out("drp_clk_o"),
    inBus("drp_addr_i[23:0]"),
    in("drp_wren_i"),
    inBus("drp_wrdata_i[31:0]"),
    inBus("drp_strb_i[7:0]"),
    in("drp_rden_i"),
    out("drp_ready_o"),
    out("drp_rdvld_o"),
    outBus("drp_rddata_o[31:0]"),
    out("drp_resp_o"),
};
// clang-format on

bool usesFifo(const QString& coding) {
    return coding == Value::Off || coding == Value::Code8B10B;
}

/// The groups that every lane of this state has, in order.
std::vector<const Pins*> laneGroups(const FigureState& state) {
    std::vector<const Pins*> groups{&everyLane};
    if (isListed(state.device)) {
        groups.push_back(usesFifo(state.rxDecoding) ? &rxFifo : &rxBlock);
        groups.push_back(usesFifo(state.txEncoding) ? &txFifo : &txBlock);
    } else {
        groups.insert(groups.end(), {&rxBlock, &rxFifo, &txBlock, &txFifo});
    }
    if (state.clockCorrection) {
        groups.push_back(&correction);
    }
    if (state.rxBonding) {
        groups.push_back(&bonding);
    }
    if (state.wordAlignment) {
        groups.push_back(&alignment);
    }
    return groups;
}

void append(QList<Utils::PinFigure>& figure, const Pins& pins, const QString& prefix) {
    for (const Pin& pin : pins) {
        QString name = QString::fromLatin1(pin.name);
        name.replace("%1"_l1, prefix);
        figure.append(Utils::PinFigure(name, pin.direction, pin.bus, pin.side));
    }
}

} // namespace

QList<Utils::PinFigure> figurePins(const FigureState& state) {
    QList<Utils::PinFigure> figure;
    const std::vector<const Pins*> groups = laneGroups(state);
    for (const QString& prefix : state.lanePrefixes) {
        for (const Pins* group : groups) {
            append(figure, *group, prefix);
        }
    }
    if (state.drp) {
        append(figure, reconfiguration, QString());
    }
    return figure;
}

} // namespace IPCUSTOMIZED::rules
