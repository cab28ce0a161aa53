// Every field of every parameter against what is known of the device: names in menu order, ids, and for
// each row the conventions of its kind, changed by what is particular to it.
#include "ParamSystem/TALUX_Params.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <initializer_list>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

constexpr int kTemplateRows = 34;

// All names behind the templates; A1..A3 is a series, a[1..3] an indexed parameter.
constexpr const char* kNames = R"(
MainScreenText, ParamMagic, ParamChanged, IpParamChanged, SecParamChanged, ParamInit, StmParamChanged,
MainScreen, LedTest, LedSimulation, ADC_samples, U1_prim, U2_prim, U3_prim, U0_prim, I1_prim, I2_prim,
I3_prim, I0_prim, phiUI1..phiUI3, phiUI0, U1..U3, U0, I1..I3, I0, S1_prim, S2_prim, S3_prim, S0_prim,
P1_prim, P2_prim, P3_prim, P0_prim, Q1_prim, Q2_prim, Q3_prim, Q0_prim, U12_prim, U23_prim, U31_prim,
U12_sec, U23_sec, U31_sec, S_prim, P_prim, Q_prim, COSPHI, I0earth_prim, I1sc_prim, I2sc_prim, I3sc_prim,
IEsc_prim, U0_250_abs, I0_250_abs, Y0_250_abs, Y0_250_phi, U0_f1_abs, I0_f1_abs, Y0_f1_abs, Y0_f1_phi,
U0_f2_abs, I0_f2_abs, Y0_f2_abs, Y0_f2_phi, U0_f3_abs, I0_f3_abs, Y0_f3_abs, Y0_f3_phi, f_grid, U_BE1_ac,
U_BE2_ac, U_BE1_dc, U_BE2_dc, I0_max_stat, I1_max_stat, I2_max_stat, I3_max_stat, I0_max_stat_c0,
I1_max_stat_c0, I2_max_stat_c0, I3_max_stat_c0, I0_max_stat_c1, I1_max_stat_c1, I2_max_stat_c1,
I3_max_stat_c1, I0_max_stat_c2, I1_max_stat_c2, I2_max_stat_c2, I3_max_stat_c2, I0_max_stat_c3,
I1_max_stat_c3, I2_max_stat_c3, I3_max_stat_c3, I0_max_stat_c4, I1_max_stat_c4, I2_max_stat_c4,
I3_max_stat_c4, EvCnt_qu2_c0..EvCnt_qu2_c4, EvCnt_qu2, REL1..REL8, BE1..BE6,
MW_meas_disp1..MW_meas_disp13, VarSaveParams, Name, Abg, Kenn, Language, Date, Time, MAC_adress,
Kernel_version, rootfs_version, FW_version, Algo_version, Cortex_version, XML_version, Status_art_no,
Status_ser_no, Status_ord_no, Status_dat, Status_ins, Status_sdcard, Status_rtc, meas_disp1..meas_disp10,
LED1_txt, LED2_txt, LED3_txt, LED4_txt, ETH0_IP, ETH0_MASK, ETH0_GATEWAY, VarResetIP, VarResetIPMask,
VarResetIPGateway, eth1_active, ETH1_DRV, ETH1_IP, ETH1_MASK, ETH1_GATEWAY, wlan0_active, WLAN0_DRV,
VarAdhocWLAN0, VarSetWLAN0TypeDev, WLAN0_IP, WLAN0_MASK, WLAN0_GATEWAY, essid, rate, key, channel, DNS,
Firewall_dis, FW_ETH0_com, FW_ETH0_ssh, FW_ETH0_vnc, FW_ETH0_mod, FW_ETH0_104, FW_ETH0_DNP3, FW_ETH0_ACT,
FW_ETH0_NET, FW_ETH0_MASK, FW_ETH1_com, FW_ETH1_ssh, FW_ETH1_vnc, FW_ETH1_mod, FW_ETH1_104, FW_ETH1_DNP3,
FW_ETH1_ACT, FW_ETH1_NET, FW_ETH1_MASK, FW_ETHW_com, FW_ETHW_ssh, FW_ETHW_vnc, FW_ETHW_mod, FW_ETHW_104,
FW_ETHW_DNP3, FW_ETHW_ACT, FW_ETHW_NET, FW_ETHW_MASK, FW_BLOCK, ftp_pasv_pro, ftp_log, ftp_min_passive,
ftp_max_passive, Disable_boot_timeout, TIMEZONE, NTP1, NTP2, NTP_RTC, TIMESERVER_active, RTCSET_UTC_activ,
DCF77_activ, DCF77_port, VELMO_activ, VELMO_port, VELMO_tsyncdelay, VELMO_format, VELMO_cstring,
Modbustime_activ, Modbustime_port, Modbustime_reg, Modbustime_tsyncdelay, log_time_change, Baudrate1,
DataBits1, Parity1, Stopbits1, Handshake1, Terminierung1, Baudrate2, DataBits2, Parity2, Stopbits2,
Handshake2, Terminierung2, Baudrate3, DataBits3, Parity3, Stopbits3, Handshake3, modbus_active, mod_prot,
Modbus_Port, Modbus_SlaveID, Modbus_StoreTime, vBEmo, vBEFmo, vBAFmo, vBAmo, y_BEmo, y_vBEFmo, y_vBAFmo,
y_vBAmo, y_LEDmo, aUIgmo, wUIgmo, dwUIgmo, UImo, vBEmoc, vBEFmoc, vBAFmoc, vBAmoc, y_vBEmow, y_vTIMEmow,
y_vBEmowc, UImo2, vBAmo_VIRT, vMWRmo_VIRT, vBAmoc_VIRT, vBEmo_VIRT, vMWWmo_VIRT, vBEmoc_VIRT, T101_active,
T101_port, T101_cotfl, T101_cafl, T101_ioafl, T101_balance, T101_dirbit, T101_adrfl, T101_adr,
T101_station_ca, T101_pi_update, T103_active, T103_port, T103_station_ca, T103_pi_update, T104_active,
T104_ethernet, T104_station_ca, T104_port, T104_T0..T104_T3, T104_K, T104_W, T104_all_ip, T104_pi_update,
T104_eth_bind, T104_red_active_1, T104_port_1, T104_ETH_IP_1, T104_ETH_MA_1, T104_ETH_GW_1, T104_all_ip_1,
T104_red_active_2, T104_port_2, T104_ETH_IP_2, T104_ETH_MA_2, T104_ETH_GW_2, T104_all_ip_2,
T104_red_active_3, T104_port_3, T104_ETH_IP_3, T104_ETH_MA_3, T104_ETH_GW_3, T104_all_ip_3,
T104_red_active_4, T104_port_4, T104_ETH_IP_4, T104_ETH_MA_4, T104_ETH_GW_4, T104_all_ip_4, DNP3_active,
DNP3_DEVICE, DNP3_PORT, DNP3_ALL_IP, DNP3_ALL_IP_1, DNP3_ALL_IP_2, DNP3_LINK, DNP3_LINK_MA, DNP3_TOAL,
DNP3_TOSO, DNP3_TOIC, DNP3_TTRE, GOOSE_active, debug_slaves, debug_slaves_file, SCRIPTSERVER_active,
usedscript, script_sleep, script_timeout, debug_script, debug_script_file, CONMASTER_active,
Modbus_port_conmaster, Modbus_poll_conmaster, Modbus_sleep_conmaster, Modbus_csv_conmaster,
usedscript_conmaster, script_sleep_conmaster, script_timeout_conmaster, debug_conmaster_mod,
debug_conmaster_lua, debug_file_conmaster, conman_status[1..247], conman_error[1..247], conman_slaves,
vBA[1..96], vBE[1..96], vMWR[1..96], vMWW[1..96], SLvBA[1..96], SLvBE[1..96], SLvMWR[1..96],
SLvMWW[1..96], lua_modbus, frequency, freq_U0_active, freq_U1_active, freq_U2_active, freq_U3_active,
f50_sync, U12, Uassign1, knu1, U1_sek_ref, knuV1, phi_corr_U1, Upol1, Uassign2, knu2, U2_sek_ref, knuV2,
phi_corr_U2, Upol2, Uassign3, knu3, U3_sek_ref, knuV3, phi_corr_U3, Upol3, Uassign0, knu0, U0_sek_ref,
knuV0, phi_corr_U0, Upol0, Uen_calc, calib_U12_mess, calib_start, StartCalibration, calib_confirm,
calib_U12_soll, calib_U12_min, calib_U12_max, calib_U1e_new, calib_U2e_new, calib_U3e_new, U_sec_valid,
Iassign1, kni1, I1_sek_ref, kniV1, phi_corr_I1, Ipol1, Iassign2, kni2, I2_sek_ref, kniV2, phi_corr_I2,
Ipol2, Iassign3, kni3, I3_sek_ref, kniV3, phi_corr_I3, Ipol3, Iassign0, kni0, I0_sek_ref, kniV0,
phi_corr_I0, Ipol0, 3Io_calc, I_sec_valid, BEpol1, BE_knuV_1, BE_Offset_1, BE_DC_on_1, BE_DC_off_1,
BE_AC_on_1, BE_AC_off_1, BEpol2, BE_knuV_2, BE_Offset_2, BE_DC_on_2, BE_DC_off_2, BE_AC_on_2, BE_AC_off_2,
BEpol3..BEpol6, BEFassign1..BEFassign16, uBAF1..uBAF8, BAassign1, BApol1, BAassign2, BApol2, BAassign3,
BApol3, BAassign4, BApol4, BAassign5, BApol5, BAassign6, BApol6, BAassign7, BApol7, BAassign8, BApol8,
LEDassign1, LEDpol1, LEDassign2, LEDpol2, LEDassign3, LEDpol3, LEDassign4, LEDpol4, LEDassign5, LEDpol5,
LEDassign6, LEDpol6, LEDassign7, LEDpol7, LEDassign8, LEDpol8, LEDassign9, LEDpol9, LEDassign10, LEDpol10,
log_LED, U123ok, U123erd, Uearth, Uearth_SigDel, Uearth_SigDur, Uearth_SigDur_LED,
prio_list_1..prio_list_10, qu2_active, qu2_Ice, qu2_rot_grad_min, U_Hz_proz, preBuff_Umin, preBuff_dUo,
qu2_DE_active, DE_t, qu2_SigDur, qu2_SigDur_LED, qu2_MsgResetEf, qu_signalling, LCD_log_active_qu2,
qui_active, qui_dUo, qui_Ice, qui_T_super, qui_n, qui_SigDur, qui_SigDur_LED, LCD_log_active_qui,
qui_log_cycle, qui_dT_log, harm1_active, harm1_Umin, harm1_Ice, harm1_angle, harm1_cycle, harm1_SigDel,
harm1_SigDur, harm1_SigDur_LED, LCD_log_active_ov5, harm1_log_cycle, harm1_dT_log, harm2_active, harm2_f,
harm2_Umin, harm2_Ice, harm2_angle, harm2_cycle, harm2_SigDel, harm2_SigDur, harm2_SigDur_LED,
LCD_log_active_ovx, harm2_log_cycle, harm2_dT_log, adm_active, adm_I_min_1, adm_I_min_2, adm_Z_f_max,
adm_fu, adm_fo, adm_Phi_FW_min, adm_Phi_FW_max, adm_Phi_BW_min, adm_Phi_BW_max, adm_T_win, adm_U_min,
adm_Uo_enabled, adm_dPhi_Yo, adm_N_cycles, adm_T_delay, adm_T_hold, adm_T_hold_LED, adm_log_active,
adm_log_cycle, adm_log_dT, LCD_log_active_adm, cos_active, cos_Iw_min, cos_w_min, cos_cycle,
cos_store_active, cos_SigDel, cos_SigDur, cos_SigDur_LED, LCD_log_active_cos, cos_log_cycle, cos_dT_log,
sin_active, sin_I_min, sin_w_min, sin_cycle, sin_SigDel, sin_SigDur, sin_SigDur_LED, LCD_log_active_sin,
sin_log_cycle, sin_dT_log, cos_sin_active, CosSin_I_min, CosSin_angle1, CosSin_angle2, cos_sin_cycle,
cos_sin_SigDel, cos_sin_SigDur, cos_sin_SigDur_LED, LCD_log_active_sincos, cos_sin_log_cycle,
cos_sin_dT_log, p50_active, p50_Uen_active, p50_dIe, p50_T_on, p50_T_off, p50_P_min, p50_P_sum,
p50_SigDur, LCD_log_active_puls50, p50_log_cycle, p50_dT_log, pHPCI_active, pHPCI_Q_pulse, pHPCI_I_min,
pHPCI_pattern, pHPCI_N_cycles, pHPCI_Z_f_max, pHPCI_U_min, pHPCI_dPhi, pHPCI_Yo_quot_abs,
pHPCI_Yo_quot_phi, pHPCI_T_delay, pHPCI_T_hold, pHPCI_T_hold_LED, LCD_log_active_HPCI, sc_active,
sc_class_1_active, sc_I_min_1, sc_T_min_1, sc_class_2_active, sc_I_min_2, sc_T_min_2, sc_class_E_active,
sc_I_min_E, sc_T_min_E, sc_SigDur, sc_SigDur_LED, sc_dir_active, sc_Phi_max_fwd, sc_Phi_min_fwd,
sc_Phi_max_bwd, sc_Phi_min_bwd, sc_sig_fwd_U_zero, freq_active, freq_f_grid, freq_df_min, freq_df_max,
freq_N_cycle, freq_T_delay, freq_T_hold, freq_T_hold_LED, freq_log_entry, rec_pretrig_per, rec_posttrig_t,
rec_retrig_t, rec_retrig_dur, sc_posttrig_C1, sc_posttrig_C2, max_cnt_rec, stat_enabled, stat_intervall,
stat_I0_max_enabled, stat_I1_max_enabled, stat_I2_max_enabled, stat_I3_max_enabled, stat_I0_av_enabled,
stat_I1_av_enabled, stat_I2_av_enabled, stat_I3_av_enabled, stat_U0_max_enabled, stat_U1_max_enabled,
stat_U2_max_enabled, stat_U3_max_enabled, stat_U0_min_enabled, stat_U1_min_enabled, stat_U2_min_enabled,
stat_U3_min_enabled, stat_U0_av_enabled, stat_U1_av_enabled, stat_U2_av_enabled, stat_U3_av_enabled,
stat_U12_max_enabled, stat_U23_max_enabled, stat_U31_max_enabled, stat_P0_max_enabled,
stat_P1_max_enabled, stat_P2_max_enabled, stat_P3_max_enabled, stat_P0_min_enabled, stat_P1_min_enabled,
stat_P2_min_enabled, stat_P3_min_enabled, stat_P0_av_enabled, stat_P1_av_enabled, stat_P2_av_enabled,
stat_P3_av_enabled, stat_Q0_max_enabled, stat_Q1_max_enabled, stat_Q2_max_enabled, stat_Q3_max_enabled,
stat_Q0_min_enabled, stat_Q1_min_enabled, stat_Q2_min_enabled, stat_Q3_min_enabled, stat_Q0_av_enabled,
stat_Q1_av_enabled, stat_Q2_av_enabled, stat_Q3_av_enabled, stat_P_all_max_enabled,
stat_P_all_min_enabled, stat_P_all_av_enabled, stat_Q_all_max_enabled, stat_Q_all_min_enabled,
stat_Q_all_av_enabled, stat_S_all_max_enabled, stat_S_all_av_enabled, UserText1..UserText16, USB_SaveAll,
USB_SaveLog, USB_SaveRec, USB_SaveIni, USB_SaveAllMac, USBparameter, Logbook, LCD_log_clear, LCD_Test,
panel_users_active, tcp_users_active, ro_pin_active, RO_Pin_change, RO_Pin_enter, rw_pin_active,
RW_Pin_change, RW_Pin_enter, sec_mode, pub_key, pub_inf, eph_key, date_info, gui_enabled, key_enabled,
Logout, max_ini_files, BA_red_cnt, rec_start, MW_start, BAF_LED_log, stat_clear, skew_type, filt_active,
cycle_cnt_low, cycle_cnt_high, BE_Reset_Button, OVR_new, OVR_BEF_enable, OVR_BE_enable, OVR_BE_LT_enable,
OVR_BAF_enable, OVR_BA_enable, OVR_time, OVR_MW_enable, OVR_MW_time, OVR_MW_BE_enable, OVR_MW_BE_time,
OVR_BE_val[1..8], OVR_BE_LT_val[1..32], OVR_BEF_val[1..16], OVR_BAF_val[1..128], OVR_BA_val[1..8],
OVR_MW_val[1..32], BAF_cnt_val_dT1, BAF_cnt_val_dT2, SIGNAL_BAFs_enable, SIGNAL_BAs_enable,
LOG_BAFs_enable, LOG_BA_enable, par_list, DEBUG, debug_tv, debug_tv_samp, SOURCE_SAMPLES,
SOURCE_SAMPLES_OLD, SampleFile, y_BE, y_BE_LT, y_BEF, y_BAF1..y_BAF4, y_BA, y_LED, y_EarthFaultState,
y_ShortCircuitState, calib_U, calib_U0..calib_U3, calib_I, calib_I0..calib_I3, mw_req, mw_U0p, mw_U1p,
mw_U2p, mw_U3p, mw_U0s, mw_U1s, mw_U2s, mw_U3s, mw_I0p, mw_I1p, mw_I2p, mw_I3p, mw_I0s, mw_I1s, mw_I2s,
mw_I3s, mw_phi_U0..mw_phi_U3, mw_phi_I0..mw_phi_I3, mw_phi_UI0..mw_phi_UI3, mw_BE_AC_1, mw_BE_Av_1,
mw_BE_AC_2, mw_BE_Av_2, BA_RelayBack, DisplayLevel, MessRecord01, MessRecord02, StatRecord_c0)";

struct Name {
    std::string text;
    int lastIndex = 0; // of an indexed parameter
};

int numberIn(const std::string& text, std::size_t at) {
    return static_cast<int>(std::strtol(text.c_str() + at, nullptr, 10));
}

// The names that one item of the list stands for, one for each row.
std::vector<Name> expanded(const std::string& item) {
    const std::size_t bracket = item.find('[');
    if (bracket != std::string::npos) {
        const int last = numberIn(item, item.find("..") + 2);
        return std::vector<Name>(static_cast<std::size_t>(last), {item.substr(0, bracket), last});
    }
    const std::size_t dots = item.find("..");
    if (dots == std::string::npos) return {{item}};
    const std::size_t first = item.find_last_not_of("0123456789", dots - 1) + 1;
    const std::size_t last = item.find_last_not_of("0123456789") + 1;
    std::vector<Name> names;
    for (int number = numberIn(item, first); number <= numberIn(item, last); ++number)
        names.push_back({item.substr(0, first) + std::to_string(number)});
    return names;
}

std::vector<std::string> words(std::string text) {
    for (char& c : text)
        if (c == ',') c = ' ';
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

std::vector<Name> namesIn(const char* list) {
    std::vector<Name> names;
    for (const std::string& item : words(list))
        for (Name& name : expanded(item))
            names.push_back(std::move(name));
    return names;
}

const stParamProperties* begin() {
    return DefParamProperties + 1;
}
const stParamProperties* end() {
    return DefParamProperties + 1 + kParamCount;
}

TEST(Catalogue, NamesStandInMenuOrder) {
    const std::vector<Name> names = namesIn(kNames);
    ASSERT_EQ(names.size(), static_cast<std::size_t>(kParamCount - kTemplateRows));
    for (std::size_t k = 0; k < names.size(); ++k) {
        const stParamProperties& row = begin()[kTemplateRows + k];
        EXPECT_EQ(row.name, names[k].text) << "row " << k;
        EXPECT_EQ(row.val_min_id, names[k].lastIndex > 0) << row.name;
        EXPECT_EQ(row.val_max_id, names[k].lastIndex) << row.name;
    }
    for (int k = 0; k < kTemplateRows; ++k) {
        EXPECT_STREQ(begin()[k].name, "");
        EXPECT_EQ(begin()[k].id, 18000 + k);
    }
}

TEST(Catalogue, SentinelsFrameTheTable) {
    for (const stParamProperties* row : {begin() - 1, end()}) {
        EXPECT_EQ(row->id, 0);
        EXPECT_EQ(row->type, 0);
        EXPECT_EQ(row->val_access, 0);
        EXPECT_EQ(row->userlevel, 0);
        for (const char* text : {row->name, row->format, row->val_init_text, row->val_def_text})
            EXPECT_STREQ(text, "***");
    }
}

// Ids grow by one from row to row of a kind; where they start anew is in this list, with ends of families.
constexpr const char* kIds = R"(
    MainScreenText 19000 VarSaveParams 19001 VarResetIP 19002 StartCalibration 19006 USB_SaveAll 19007
    USBparameter 19012 LCD_Test 19015 RO_Pin_change 19016 RW_Pin_enter 19019 Logout 19020
    ParamMagic 6000 ADC_samples 6001 REL1 6002 BE1 6010 MW_meas_disp13 6028 channel 6029 FW_BLOCK 6030
    Modbustime_reg 6033 Modbus_Port 6034 T101_cotfl 6064 DNP3_TTRE 6088 script_sleep 6089
    conman_status 6094 conman_error 6341 vBA 6588 SLvBE 6876 f50_sync 6972 calib_confirm 6973
    qui_T_super 6974 rec_pretrig_per 6986 stat_intervall 6993 max_ini_files 6994 stat_clear 6999
    cycle_cnt_low 7000 OVR_BE_LT_enable 7006 LOG_BAFs_enable 7208 SOURCE_SAMPLES_OLD 7213 y_BE 7246
    mw_req 7267 BA_RelayBack 7268
    U1_prim 2000 I3_max_stat_c4 2091 U12 2092 calib_U12_mess 2109 U_sec_valid 2116 I_sec_valid 2133
    BE_knuV_1 2134 BE_AC_off_2 2145 U123ok 2146 freq_T_hold_LED 2247 OVR_MW_val 2248 mw_U0p 2280
    mw_BE_Av_2 2311 EvCnt_qu2_c0 7000 EvCnt_qu2 7005 DisplayLevel 7006 vMWR 1000 vMWW 1096 SLvMWW 1288
    ParamChanged 8000 IpParamChanged 8001 SecParamChanged 8002 StmParamChanged 8004 eth1_active 8008
    wlan0_active 8009 Firewall_dis 8010 Disable_boot_timeout 8034 NTP_RTC 8035 DCF77_activ 8038
    log_time_change 8041 modbus_active 8042 T101_active 8043 GOOSE_active 8055 debug_slaves 8056
    freq_U0_active 8066 calib_start 8071 log_LED 8073 qu2_active 8074 freq_log_entry 8115
    stat_enabled 8116 panel_users_active 8172 sec_mode 8176 key_enabled 8178 filt_active 8179 DEBUG 8183
    Name 9000 Abg 9001 MAC_adress 9002 Status_rtc 9015 LED1_txt 9016 ETH1_DRV 9020 WLAN0_DRV 9021
    essid 9022 key 9023 TIMEZONE 9024 usedscript 9028 conman_slaves 9031 lua_modbus 9032 uBAF1 9033
    UserText1 9041 pub_key 9057 SampleFile 9061
    Language 10000 meas_disp1 10001 VarSetWLAN0TypeDev 10011 rate 10012 DCF77_port 10013 Baudrate1 10017
    mod_prot 10034 T101_port 10035 T101_adrfl 10038 T104_ethernet 10040 Modbus_port_conmaster 10042
    frequency 10043 Ipol0 10059 BEpol1 10060 LEDpol10 10117 prio_list_1 10118 qu_signalling 10128
    pHPCI_pattern 10129 skew_type 10130
    Date 13000 Time 14000 Kenn 15000 DNS 16000 FW_ETH0_NET 16001 NTP1 16007 NTP2 16008 T104_all_ip 16009
    T104_ETH_IP_1 16010 T104_ETH_MA_2 16015 T104_ETH_GW_4 16024 DNP3_ALL_IP 16026 DNP3_ALL_IP_2 16028
    ETH0_IP 16029 ETH1_IP 16030 WLAN0_IP 16031 ETH0_MASK 16032 ETH1_MASK 16033 WLAN0_MASK 16034
    ETH0_GATEWAY 16035 ETH1_GATEWAY 16036 WLAN0_GATEWAY 16037
    MessRecord01 30000 MessRecord02 30001 StatRecord_c0 30002)";

TEST(Catalogue, IdsFollowTheRows) {
    std::map<std::string, int> known;
    const std::vector<std::string> ids = words(kIds);
    for (std::size_t k = 0; k + 1 < ids.size(); k += 2)
        known[ids[k]] = std::stoi(ids[k + 1]);
    std::map<int, int> previous; // by type
    for (const stParamProperties* row = begin() + kTemplateRows; row != end(); ++row) {
        const auto told = known.find(row->name);
        EXPECT_EQ(row->id, told != known.end() ? told->second : previous[row->type] + 1) << row->name;
        if (told != known.end()) known.erase(told); // later elements count on
        previous[row->type] = row->id;
    }
    EXPECT_TRUE(known.empty()) << known.begin()->first << " has no row";
}

// Ranges of ids: first and last in turn.
bool within(int id, std::initializer_list<int> ranges) {
    for (const int* range = ranges.begin(); range != ranges.end(); range += 2)
        if (id >= range[0] && id <= range[1]) return true;
    return false;
}

bool isVolatile(const stParamProperties& row) {
    if (row.type == kTypeInt) return true;
    return within(row.id, {1000, 1383, 2000, 2091, 2113, 2115, 2248, 2311, 6000,  6028, 6094,
                           6971, 6973, 6973, 6996, 7205, 7209, 7268, 8000, 8007,  8071, 8071,
                           8177, 8178, 9014, 9015, 9031, 9032, 9057, 9061, 30000, 30002});
}

int typeOf(const stParamProperties& row) {
    constexpr int kBlocks[][3] = {{1000, 1383, 2002},   {2000, 2311, 2003},   {6000, 7268, 2004},
                                  {8000, 8190, 2010},   {9000, 9068, 2011},   {10000, 10130, 2012},
                                  {13000, 13000, 2015}, {14000, 14000, 2016}, {15000, 15000, 2017},
                                  {16000, 16028, 2018}, {16029, 16031, 2019}, {16032, 16034, 2020},
                                  {16035, 16037, 2021}, {18000, 18020, 0},    {18027, 18027, 2003},
                                  {18021, 18033, 2012}, {19000, 19020, 2024}, {30000, 30002, 2022}};
    const std::string name = row.name;
    if (name.starts_with("EvCnt_qu2") || name == "DisplayLevel") return 2008;
    for (const auto& block : kBlocks)
        if (within(row.id, {block[0], block[1]})) return block[2];
    return -1;
}

// What a row is to be: by the conventions of its kind at first.
struct Expected {
    double def = 0, min = -999999999.0, max = 999999999.0, step = 1;
    std::string text, init;
    int length = -1, level = 1, access = 3, like = 0;
};

Expected conventional(const stParamProperties& row) {
    Expected expected;
    const bool runtime = isVolatile(row);
    if (row.type == kTypeBool && !runtime && std::string(row.name) != "sec_mode")
        expected.min = 0, expected.max = 1;
    if (row.type == kTypeEnum && row.id < 18000) expected.def = 1;
    if (row.type >= kTypeIp && row.type <= kTypeIpGateway) expected.text = expected.init = "0.0.0.0";
    return expected;
}

// "name value name value ..", where a name may stand for a series.
template <class Apply>
void forEachFact(const char* facts, Apply apply) {
    const std::vector<std::string> items = words(facts);
    for (std::size_t k = 0; k + 1 < items.size(); k += 2)
        for (const Name& name : namesIn(items[k].c_str()))
            apply(name.text, items[k + 1]);
}

constexpr double kNone = 999999999.0;

struct RangeFacts {
    double min, max;
    const char* defaults; // name and default in turn
};

constexpr RangeFacts kNumbers[] = {
    {0, 1999999999, "ParamMagic 0"},
    {0, 65535, "EvCnt_qu2_c0..4 0 EvCnt_qu2 0"},
    {1, 2,
     "Language 1 VarSetWLAN0TypeDev 1 VELMO_format 1 Modbustime_port 1 T101_cotfl 1 T101_cafl 2 "
     "T104_ethernet 1 Modbus_port_conmaster 1 Upol0..3 1 Ipol0..3 1 frequency 1"},
    {1, 3, "rate 1 DCF77_port 3 T101_ioafl 3"},
    {1, 4, "mod_prot 3"},
    {1, 5, "DNP3_DEVICE 1 Uassign1 3 Uassign2 4 Uassign3 5 Uassign0 2"},
    {0, 5, "Iassign1 3 Iassign2 4 Iassign3 5 Iassign0 2"},
    {2, 3, "qu_signalling 2"},
    {0, 6, "pHPCI_pattern 5"},
    {1, 20, "prio_list_1..10 1"},
    {-kNone, 2,
     "DataBits1..3 2 Terminierung1..2 1 T101_balance 1 T101_dirbit 1 T101_adrfl 1 BEpol1..6 1 "
     "BApol1..8 1 LEDpol1..7 1 LEDpol8 2 LEDpol9..10 1"},
    {-kNone, 3, "VELMO_port 1 T101_port 2 T103_port 3 Parity1..3 1 Stopbits1..3 1 Handshake1..3 1"},
    {-kNone, 4, "skew_type 4"},
    {-kNone, 5, "Baudrate1..3 5"},
    {-kNone, 24,
     "meas_disp1 1 meas_disp2 2 meas_disp3 3 meas_disp4 4 meas_disp5 5 meas_disp6 6 meas_disp7 7 "
     "meas_disp8 8 meas_disp9 9 meas_disp10 10"},
    {-kNone, 103, "BEFassign1..16 1"},
    {-kNone, 128,
     "BAassign1 3 BAassign2 1 BAassign3 26 BAassign4 27 BAassign5..8 1 LEDassign1 18 LEDassign2 5 "
     "LEDassign3 19 LEDassign4 6 LEDassign5 20 LEDassign6 7 LEDassign7..8 16 LEDassign9..10 1"},
    {-1, 86400, "FW_BLOCK 3600"},
    {1024, 65535, "ftp_min_passive 1024 ftp_max_passive 1124"},
    {1, 11, "channel 11 rec_pretrig_per 5"},
    {1, 10000, "Modbustime_reg 2800 max_cnt_rec 100"},
    {0, 247, "Modbus_SlaveID 11"},
    {0, 60000, "Modbus_StoreTime 100"},
    {0, 65536,
     "vBEmo 0 vBEFmo 200 vBAFmo 400 vBAmo 600 y_BEmo 800 y_vBEFmo 1000 y_vBAFmo 1200 y_vBAmo 1400 "
     "y_LEDmo 1600 aUIgmo 1800 wUIgmo 2000 dwUIgmo 2200 UImo 2400 y_vBEmow 2600 y_vTIMEmow 2800 "
     "vBEmoc 3000 vBEFmoc 3200 vBAFmoc 3400 vBAmoc 3600 y_vBEmowc 3800 UImo2 4000 vBAmo_VIRT 5000 "
     "vMWRmo_VIRT 5400 vBEmo_VIRT 6000 vMWWmo_VIRT 6400 vBAmoc_VIRT 15000 vBEmoc_VIRT 16000"},
    {0, 65534, "T101_adr 1"},
    {0, 255, "T103_station_ca 1"},
    {1, 255, "T104_T0 30 T104_T1 15 T104_T2 10"},
    {1, 2880, "T104_T3 20"},
    {1, 32767, "T104_K 12 T104_W 8"},
    {2, 1000, "DNP3_TOIC 20"},
    {200, 65535, "script_sleep 800 script_sleep_conmaster 800"},
    {-1, 65535, "script_timeout 60 script_timeout_conmaster 60"},
    {20, 65535, "Modbus_sleep_conmaster 200"},
    {-1, 999000, "rec_retrig_t -1"},
    {100, 2500, "sc_posttrig_C1 200 sc_posttrig_C2 200"},
    {1, 60, "stat_intervall 10"},
    {-1, 100000, "BAF_cnt_val_dT1 0 BAF_cnt_val_dT2 0"},
    {0, 3, "LOG_BAFs_enable 0"},
    {10, 900000, "U12 20000"},
    {0.1, 90000, "knu1..3 200 knu0 115 kni0..3 100"},
    {0.001, 90000, "knuV0..3 201 kniV0..3 0.7722"},
    {-7, 7, "phi_corr_U0..3 0 phi_corr_I0..3 0"},
    {0.1, 10, "U_sec_valid 1"},
    {0.001, 0.01, "I_sec_valid 0.001"},
    {0.05, 120, "calib_U12_mess 20"},
    {60, 140, "calib_U12_soll 100"},
    {3, 95, "calib_U12_min 10"},
    {100, 300, "calib_U12_max 150"},
    {10, 120.8, "calib_U1e_new 0 calib_U2e_new 0 calib_U3e_new 0"},
    {18, 300, "BE_DC_on_1..2 40 BE_DC_off_1..2 30 BE_AC_on_1..2 40 BE_AC_off_1..2 30"},
    {1, 90, "U123ok 80 U123erd 20 Uearth 30"},
    {0, 86400,
     "Uearth_SigDel 1 Uearth_SigDur 0 Uearth_SigDur_LED 0 qu2_SigDur 0 qu2_SigDur_LED 0 qui_SigDur 0 "
     "qui_SigDur_LED 0 harm1_SigDel 0 harm1_SigDur 0 harm1_SigDur_LED 0 harm2_SigDel 0 harm2_SigDur 5 "
     "harm2_SigDur_LED 0 cos_SigDel 0 cos_SigDur 0 cos_SigDur_LED 0 sin_SigDel 0 sin_SigDur 0 "
     "sin_SigDur_LED 0 cos_sin_SigDel 0 cos_sin_SigDur 0 cos_sin_SigDur_LED 0 p50_SigDur 0 "
     "sc_SigDur 10 sc_SigDur_LED 0"},
    {17.5, 70, "pHPCI_Q_pulse 35"},
    {0.9, 0.999, "pHPCI_Yo_quot_abs 0.99"},
    {16.7, 65, "freq_f_grid 50"},
    {0, 1,
     "Firewall_dis 1 NTP_RTC 1 TIMESERVER_active 1 freq_U1_active 1 freq_U2_active 1 freq_U3_active 1 "
     "qu2_active 1 qu2_DE_active 1 qui_active 1 sc_class_1_active 1 sc_class_2_active 1 filt_active 1 "
     "SIGNAL_BAFs_enable 1 SIGNAL_BAs_enable 1 LOG_BA_enable 1 FW_ETH0_com 1 FW_ETH0_ssh 1 FW_ETH0_vnc 1 "
     "FW_ETH0_mod 1 FW_ETH0_104 1 FW_ETH0_DNP3 1 FW_ETH1_com 1 FW_ETH1_ssh 1 FW_ETH1_vnc 1 FW_ETH1_mod 1 "
     "FW_ETH1_104 1 FW_ETH1_DNP3 1"},
    {-kNone, kNone,
     "Modbus_Port 502 T101_station_ca 1 T104_station_ca 1 T104_port 2404 T104_port_1..4 2404 DNP3_PORT 20000 "
     "DNP3_LINK 103 DNP3_LINK_MA 1 DNP3_TOAL 800 DNP3_TOSO 5000 DNP3_TTRE 1000 U0_sek_ref 100 U1_sek_ref 100 "
     "U2_sek_ref 100 U3_sek_ref 100 I0_sek_ref 1 I1_sek_ref 1 I2_sek_ref 1 I3_sek_ref 1 BE_knuV_1..2 0.1618 "
     "qu2_Ice 5 qu2_rot_grad_min 50 U_Hz_proz 30 preBuff_Umin 0.2 preBuff_dUo 0.2 DE_t 1 qui_dUo 15 qui_Ice "
     "5 "
     "qui_T_super 400 qui_n 2 qui_dT_log 60 harm1_Umin 0.5 harm1_Ice 1 harm1_angle 5 harm1_cycle 5 harm2_f "
     "217 "
     "harm2_Umin 0.5 harm2_Ice 3 harm2_angle 5 harm2_cycle 5 adm_I_min_1 1 adm_I_min_2 3 adm_Z_f_max 2000 "
     "adm_fu 25 adm_fo 75 adm_Phi_FW_min -255 adm_Phi_FW_max 80 adm_Phi_BW_min 85 adm_Phi_BW_max 95 "
     "adm_T_win 0.12 adm_U_min 1 adm_dPhi_Yo -200 adm_N_cycles 3 cos_Iw_min 1 cos_w_min 2 cos_cycle 5 "
     "sin_I_min 5 sin_w_min 5 sin_cycle 5 CosSin_I_min 2 CosSin_angle1 1 CosSin_angle2 -91 cos_sin_cycle 3 "
     "cos_sin_dT_log 300 p50_dIe 1 p50_T_on 1 p50_T_off 1.5 p50_P_min 3 p50_P_sum 5 pHPCI_I_min 1 "
     "pHPCI_N_cycles 3 pHPCI_Z_f_max 2000 pHPCI_U_min 1 pHPCI_dPhi 5 pHPCI_Yo_quot_phi 1 sc_I_min_1 500 "
     "sc_T_min_1 0.5 sc_I_min_2 700 sc_T_min_2 0.1 sc_I_min_E 100 sc_T_min_E 0.1 sc_Phi_min_fwd -35 "
     "sc_Phi_max_fwd 80 sc_Phi_min_bwd -215 sc_Phi_max_bwd -100 freq_df_min 0.1 freq_df_max 0.1 freq_N_cycle "
     "3 "
     "freq_T_delay 3 freq_T_hold 15 rec_posttrig_t 2000 rec_retrig_dur 1000 max_ini_files 15 BA_red_cnt 1 "
     "sec_mode 1"},
};

constexpr const char* kTexts = R"(
    Name DEF-NAME Abg DEF-ABG Kenn A: Date 0 Time 0 LED1_txt L1 LED2_txt L2 LED3_txt L3 LED4_txt N
    ETH0_IP 192.168.55.127 ETH1_IP 10.16.55.128 WLAN0_IP 192.168.55.129 ETH0_MASK 255.255.0.0
    ETH1_MASK 255.255.0.0 WLAN0_MASK 255.255.0.0 ETH1_DRV kernel; WLAN0_DRV kernel; essid talux key off
    TIMEZONE /usr/share/zoneinfo/UTC VELMO_tsyncdelay 00:01 Modbustime_tsyncdelay 01:00
    T104_ETH_MA_1..4 255.255.255.0 DNP3_ALL_IP 192.168.55.1 DNP3_ALL_IP_1..2 192.168.55.1
    usedscript talux_default.lua Modbus_csv_conmaster talux_conmaster.csv usedscript_conmaster talux_conmaster.lua)";

constexpr const char* kInitialTexts = R"(
    TIMEZONE 0 DNP3_ALL_IP_1 192.168.55.2 DNP3_ALL_IP_2 192.168.55.3 pub_key 0 pub_inf 0 eph_key 0 date_info 0)";

constexpr const char* kLengths = R"(
    Name 40 Abg 40 Kenn 3 MAC_adress 20 Kernel_version 40 rootfs_version 40 FW_version 40 Algo_version 40
    Cortex_version 40 XML_version 40 Status_art_no 40 Status_ser_no 40 Status_ord_no 40 Status_dat 40
    Status_ins 40 Status_sdcard 7 Status_rtc 7 LED1_txt 5 LED2_txt 5 LED3_txt 5 LED4_txt 5 ETH1_DRV 80
    essid 40 key 40 TIMEZONE 80 VELMO_tsyncdelay 6 Modbustime_tsyncdelay 6 usedscript 255
    Modbus_csv_conmaster 255 usedscript_conmaster 255 conman_slaves 127 uBAF1..8 128 SampleFile 255)";

constexpr const char* kSteps = "calib_U12_mess 0.05 phi_corr_U0..3 0.1 phi_corr_I0..3 0.1";

constexpr const char* kTemplates = R"(
    Baudrate1..3 18021 DataBits1..3 18022 Parity1..3 18023 Stopbits1..3 18024 Handshake1..3 18025
    Terminierung1..2 18026 kni0..3 18027 BEFassign1..16 18028 BEpol1..6 18029 BAassign1..8 18030
    LEDassign1..10 18030 prio_list_1..10 18031 meas_disp1..10 18032 BApol1..8 18033)";

constexpr const char* kLevels = R"(
    VarSaveParams 2 VarResetIP 2 Firewall_dis 3 FW_BLOCK 3 ftp_pasv_pro 3 ftp_log 3 ftp_min_passive 3
    ftp_max_passive 3 Disable_boot_timeout 3 panel_users_active 3 tcp_users_active 3 ro_pin_active 3
    RO_Pin_change 3 rw_pin_active 3 RW_Pin_change 3 sec_mode 3)";

constexpr const char* kReadOnlyNames = R"(
    MAC_adress Kernel_version rootfs_version FW_version Algo_version Cortex_version XML_version Status_art_no
    Status_ser_no Status_ord_no Status_dat Status_ins Status_sdcard Status_rtc RO_Pin_enter RW_Pin_enter
    sec_mode pub_key pub_inf eph_key date_info gui_enabled key_enabled SOURCE_SAMPLES_OLD)";

class Model {
public:
    Model() {
        for (const stParamProperties* row = begin(); row != end(); ++row)
            if (*row->name) rows.emplace(row->name, conventional(*row));
        for (const RangeFacts& range : kNumbers)
            forEachFact(range.defaults, [this, &range](const std::string& name, const std::string& value) {
                Expected& expected = at(name);
                expected.def = std::stod(value), expected.min = range.min, expected.max = range.max;
            });
        forEachFact(kTexts,
                    [this](const auto& name, const auto& text) { at(name).text = at(name).init = text; });
        at("VELMO_cstring").text = at("VELMO_cstring").init = "%d.%m.%y %H:%M:%S";
        for (const Name& name : namesIn("UserText1..16"))
            at(name.text).text = at(name.text).init = " ";
        forEachFact(kInitialTexts, [this](const auto& name, const auto& text) { at(name).init = text; });
        forEachFact(kLengths,
                    [this](const auto& name, const auto& text) { at(name).length = std::stoi(text); });
        forEachFact(kSteps, [this](const auto& name, const auto& text) { at(name).step = std::stod(text); });
        forEachFact(kTemplates,
                    [this](const auto& name, const auto& text) { at(name).like = std::stoi(text); });
        forEachFact(kLevels,
                    [this](const auto& name, const auto& text) { at(name).level = std::stoi(text); });
        for (const char* port : {"ETH0", "ETH1", "ETHW"})
            for (const char* service : {"com", "ssh", "vnc", "mod", "104", "DNP3", "ACT"})
                at(std::string("FW_") + port + "_" + service).level = 3;
        for (const std::string& name : words(kReadOnlyNames))
            at(name).access = kReadOnly;
    }

    Expected of(const stParamProperties& row) {
        if (*row.name) return at(row.name);
        Expected expected;
        constexpr int kChoices[] = {5, 2, 3, 3, 3, 2, 0, 103, 2, 128, 20, 24, 2};
        if (row.id > 18020) expected.max = kChoices[row.id - 18021];
        if (row.id == 18027) expected.def = 100, expected.min = 0.1, expected.max = 90000;
        return expected;
    }

private:
    Expected& at(const std::string& name) {
        const auto row = rows.find(name);
        if (row == rows.end()) ADD_FAILURE() << "no parameter is named " << name;
        return row != rows.end() ? row->second : rows[name];
    }

    std::map<std::string, Expected> rows;
};

TEST(Catalogue, EveryFieldIsAsKnown) {
    Model model;
    for (const stParamProperties* row = begin(); row != end(); ++row) {
        SCOPED_TRACE(std::to_string(row->id) + " " + row->name);
        const Expected expected = model.of(*row);
        EXPECT_EQ(row->type, typeOf(*row));
        EXPECT_EQ(row->is_volatile, isVolatile(*row));
        EXPECT_EQ(row->val_access, expected.access);
        EXPECT_EQ(row->userlevel, expected.level);
        EXPECT_EQ(row->id_template, expected.like);
        EXPECT_EQ(row->val_len, expected.length);
        EXPECT_EQ(row->val_step, expected.step);
        EXPECT_EQ(row->val_min, expected.min);
        EXPECT_EQ(row->val_max, expected.max);
        EXPECT_EQ(row->val_def, expected.def);
        EXPECT_EQ(row->val_init, expected.def);
        EXPECT_EQ(row->val_def_text, expected.text);
        EXPECT_EQ(row->val_init_text, expected.init);
    }
}

TEST(Catalogue, OnlyMeasurementsHaveADisplayFormat) {
    const std::set<std::string> formats = {"%9.3f", "%9.1f", "%9.2f", "%5.1f", "%9.0f", "%4.1f", "%6.4f"};
    std::set<std::string> used;
    for (const stParamProperties* row = begin(); row != end(); ++row)
        if (within(row->id, {2000, 2091, 2280, 2311}))
            used.insert(row->format);
        else
            EXPECT_STREQ(row->format, "") << row->name;
    EXPECT_EQ(used, formats);
}

TEST(Catalogue, FamiliesShareTheTable) {
    int next = 1;
    for (const stParamFamily& family : DefParamFamilies) {
        EXPECT_EQ(family.first, next) << family.name;
        EXPECT_GE(family.last, family.first) << family.name;
        next = family.last + 1;
    }
    EXPECT_EQ(next, kParamCount + 1);
}

} // namespace
